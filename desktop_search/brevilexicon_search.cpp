// SPDX-License-Identifier: MIT
// The service that desktops start to search for abbreviations. It ends by itself when nobody
// searches.
#include <cstdlib>
#include <gio/gio.h>
#include <iostream>

#include "desktop_search/search_service.h"
#include "platform/system/program_folder.h"

namespace {

struct Options {
    int idleSeconds = 60;
    gboolean version = FALSE;
};

bool Parse(int argc, char** argv, Options& options) {
    const GOptionEntry entries[] = {
        {"idle-seconds", 0, 0, G_OPTION_ARG_INT, &options.idleSeconds,
         "End after N seconds without a search", "N"},
        {"version", 0, 0, G_OPTION_ARG_NONE, &options.version, "Print the version", nullptr},
        {}};
    GOptionContext* const context =
        g_option_context_new("- answers the searches of desktops on the session bus");
    g_option_context_add_main_entries(context, entries, nullptr);
    GError* error = nullptr;
    bool good = g_option_context_parse(context, &argc, &argv, &error) != FALSE;
    if (!good) {
        std::cerr << "brevilexicon-search: " << error->message << '\n';
        g_error_free(error);
    } else if (argc > 1 || options.idleSeconds < 1) {
        std::cerr << "brevilexicon-search: see --help\n";
        good = false;
    }
    g_option_context_free(context);
    return good;
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int kWrongUsage = 2;
    Options options;
    if (!Parse(argc, argv, options)) {
        return kWrongUsage;
    }
    if (options.version != FALSE) {
        std::cout << "brevilexicon-search " BRELEX_VERSION "\n";
        return EXIT_SUCCESS;
    }
    GError* error = nullptr;
    GDBusConnection* const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, &error);
    if (bus == nullptr) {
        std::cerr << "brevilexicon-search: " << error->message << '\n';
        g_error_free(error);
        return EXIT_FAILURE;
    }
    bool done = false;
    {
        brelex::SearchService service(bus, brelex::ProgramFolder(), options.idleSeconds);
        done = service.Run();
    }
    g_object_unref(bus);
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}

// SPDX-License-Identifier: MIT
#include "benchmarks/support/generated_records.h"

#include <array>
#include <cstdlib>
#include <map>
#include <random>
#include <unordered_set>
#include <vector>

#include "database/database_builder.h"
#include "database/database_file.h"
#include "database/szdd.h"

namespace brelex {

std::string GeneratedDatabase(std::int64_t count) {
    static constexpr std::array kWords = {
        "Access",      "Advanced",  "Application", "Basic",      "Bus",         "Channel",
        "Computer",    "Control",   "Data",        "Digital",    "Distributed", "Dynamic",
        "Electronic",  "Extended",  "File",        "General",    "Graphics",    "High",
        "Information", "Input",     "Integrated",  "Interface",  "Internet",    "Language",
        "Link",        "Local",     "Logical",     "Management", "Memory",      "Message",
        "Module",      "Network",   "Object",      "Open",       "Operating",   "Packet",
        "Parallel",    "Processor", "Program",     "Protocol",   "Query",       "Random",
        "Remote",      "Routing",   "Secure",      "Serial",     "Service",     "Signal",
        "Storage",     "System",    "Terminal",    "Transfer",   "Transport",   "Unit",
        "Universal",   "User",      "Vector",      "Virtual",    "Web",         "Wireless",
        "XML",         "Yield",     "Zone"};
    std::mt19937_64 random(20261121);
    std::unordered_set<std::string> records;
    while (records.size() < static_cast<std::size_t>(count)) {
        const std::size_t words = 2 + random() % 4;
        std::string abbreviation;
        std::string expansion;
        for (std::size_t i = 0; i < words; ++i) {
            const std::string word = kWords.at(random() % kWords.size());
            abbreviation.push_back(word.front());
            expansion += (i == 0 ? "" : " ") + word;
        }
        // Adds letters that belong to no word. Otherwise a million abbreviations would be the same
        // few.
        for (std::uint64_t more = random() % 4; more > 0; --more) {
            abbreviation.push_back(static_cast<char>('A' + random() % 26));
        }
        records.insert(abbreviation + "\t" + expansion + " (" + std::to_string(random() % 1000) +
                       ")");
    }
    DatabaseContent content;
    content.releaseDate = std::chrono::year(2026) / 11 / 21;
    content.records.assign(records.begin(), records.end());
    return CompressSzdd(BuildDatabase(std::move(content)).expanded);
}

const RecordStore& GeneratedStore(std::int64_t count) {
    static std::map<std::int64_t, RecordStore> stores;
    RecordStore& store = stores[count];
    if (store.RowCount() == 0) {
        DatabaseHeader header;
        if (ReadDatabase(GeneratedDatabase(count), header, store) != LoadFailure::None) {
            std::abort();
        }
        store.MeasureOrder();
    }
    return store;
}

}  // namespace brelex

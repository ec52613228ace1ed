// SPDX-License-Identifier: MIT
#include "platform/window/font_reading.h"

#include <pango/pangocairo.h>

namespace brelex {

// The map of fonts starts a thread that reads them as soon as it exists (seen with Pango 1.50). GTK
// creates it only for the first text and waits for the thread right away.
void StartReadingFonts() {
    pango_cairo_font_map_get_default();
}

}  // namespace brelex

// SPDX-License-Identifier: MIT
#include <wx/app.h>

#include "app/brevilexicon_app.h"

wxIMPLEMENT_APP(brelex::BrevilexiconApp);

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/message_sink.h"

namespace brelex {

/// The help file and the read-me, in the program's folder.
inline constexpr const char* kHelpFileName = "Brelex.hlp";
inline constexpr const char* kReadMeFileName = "ReadMe.txt";

/// The title of the help viewer's window, by which an open viewer is found.
inline constexpr const char* kHelpTitle = "Brevilexicon Help";

/// What showing documents takes of the desktop. Texts are UTF-8.
class Desktop {
  public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Restores and brings forward the window with this title. Returns false if there is none, or
    /// the desktop does not tell.
    [[nodiscard]] virtual bool BringWindowForward(const std::string& title) = 0;

    /// Has the help viewer whose window has this title turn to a page, as `ShowHelpContents` names
    /// it. Nothing happens where the desktop does not tell of windows. Does not wait for it.
    virtual void TurnToPage(const std::string& title, const std::string& page) = 0;

    /// Starts the help viewer that stands in `folder` with the help file and, unless it is empty, a
    /// page of it. Returns false if there is none, or it does not start.
    [[nodiscard]] virtual bool StartHelpViewer(const std::string& folder, const std::string& book,
                                               const std::string& page) = 0;

    /// Asks the window with this title, if there is one, to close; does not wait for it.
    virtual void AskWindowToClose(const std::string& title) = 0;

    /// Has the shell do with a file, or a web or e-mail address, what it does by default. Returns
    /// false if the user has no program for it.
    virtual bool Open(const std::string& target) = 0;

    /// Opens a file for reading, whatever the default for its kind. Nobody hears of a failure.
    virtual void OpenToRead(const std::string& path) = 0;
};

/// Where and of what program the documents are.
struct ProgramPlace {
    std::string folder;  ///< the program's, ending in the separator
    std::string name;    ///< of the program file, without extension
};

/// Shows the help: brings an open viewer forward, or starts one. That is the one beside the
/// program; without it the desktop opens the help file with whatever it has for it. `page` is the
/// file name of a page in the help, which may go on with "#" and a place on it; without one, an
/// open viewer stays where it is and a new one shows the first page. Tells the user if the help
/// file or a program for it is missing.
void ShowHelpContents(const ProgramPlace& place, Desktop& desktop, MessageSink& messages,
                      const std::string& page = {});

/// Closes an open help viewer.
void CloseHelp(Desktop& desktop);

/// Opens the read-me. Tells the user if it is missing.
void OpenReadMe(const ProgramPlace& place, Desktop& desktop, MessageSink& messages);

}  // namespace brelex

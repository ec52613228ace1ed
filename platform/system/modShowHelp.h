// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/message_sink.h"

namespace brelex {

/// The help file and the read-me file, which are in the program's folder.
inline constexpr const char* kHelpFileName = "Brelex.hlp";
inline constexpr const char* kReadMeFileName = "ReadMe.txt";

/// The title of the help viewer's window. The program finds an open viewer by it.
inline constexpr const char* kHelpTitle = "Brevilexicon Help";

/// The desktop's services for showing documents. Texts are UTF-8.
class Desktop {
  public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Restores the window with this title and brings it forward. Returns false if there is none,
    /// or if the desktop does not reveal it.
    [[nodiscard]] virtual bool BringWindowForward(const std::string& title) = 0;

    /// Makes the help viewer whose window has this title turn to a page, in the form that
    /// `ShowHelpContents` takes. Does not wait for it. Does nothing where the desktop does not
    /// reveal windows.
    virtual void TurnToPage(const std::string& title, const std::string& page) = 0;

    /// Starts the help viewer in `folder` with the help file and, unless it is empty, a page of it.
    /// Returns false if there is no viewer or it does not start.
    [[nodiscard]] virtual bool StartHelpViewer(const std::string& folder, const std::string& book,
                                               const std::string& page) = 0;

    /// Asks the window with this title to close, if there is one. Does not wait for it.
    virtual void AskWindowToClose(const std::string& title) = 0;

    /// Performs the shell's default action for a file or a web or e-mail address. Returns false if
    /// the user has no program for it.
    virtual bool Open(const std::string& target) = 0;

    /// Opens a file for reading, whatever the default action for its type. Failures are not
    /// reported.
    virtual void OpenToRead(const std::string& path) = 0;
};

/// The program to which the documents belong, and its folder.
struct ProgramPlace {
    std::string folder;  ///< the program's folder, ending in the separator
    std::string name;    ///< the name of the program file, without extension
};

/// Shows the help: brings an open viewer forward, or starts the viewer in the program's folder.
/// Without that one, the desktop opens the help file with whatever program it has for it. `page` is
/// the file name of a page in the help, optionally followed by "#" and a place on it. If it is
/// empty, an open viewer stays where it is, and a new one shows the first page. Tells the user if
/// the help file or a program for it is missing.
void ShowHelpContents(const ProgramPlace& place, Desktop& desktop, MessageSink& messages,
                      const std::string& page = {});

/// Closes an open help viewer.
void CloseHelp(Desktop& desktop);

/// Opens the read-me file. Tells the user if it is missing.
void OpenReadMe(const ProgramPlace& place, Desktop& desktop, MessageSink& messages);

}  // namespace brelex

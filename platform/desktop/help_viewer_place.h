// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

class wxTopLevelWindow;

namespace brelex {

/// What other programs ask of the help viewer.
struct HelpRequests {
    /// The window shall come forward. The token is one for UseActivationToken.
    std::function<void(const std::string& token)> comeForward;

    /// The window shall show a page. Do not trust it: any program of the user can send any text.
    std::function<void(const std::string& page)> turnTo;
};

/// The place of the help viewer among the user's programs. On Linux only one viewer at a time can
/// have it: the one with the viewer's name on the session bus. Without a bus, and on Windows, where
/// viewers are found by their titles, every viewer has a place.
class HelpViewerPlace {
  public:
    /// Call it before the toolkit initializes itself, which uses up the token that the desktop
    /// gives to a new program.
    HelpViewerPlace();
    HelpViewerPlace(const HelpViewerPlace&) = delete;
    HelpViewerPlace& operator=(const HelpViewerPlace&) = delete;
    ~HelpViewerPlace();

    /// Takes the place, for the book in a file. Returns false if another viewer has it.
    [[nodiscard]] bool Take(const std::string& book);

    /// Makes the viewer that has the place show a page of the book and come forward. Returns false
    /// if it shows another book or does not answer.
    [[nodiscard]] bool ShowInOther(const std::string& book, const std::string& page);

    /// Answers requests until the window is asked to close, and then leaves the place.
    void Serve(wxTopLevelWindow& window, HelpRequests requests);

  private:
    class Service;
    std::unique_ptr<Service> service_;
};

}  // namespace brelex

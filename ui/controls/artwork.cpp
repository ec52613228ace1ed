// SPDX-License-Identifier: MIT
#include "ui/controls/artwork.h"

#include <algorithm>

#include "embedded/kAnagramStripSvg.h"
#include "embedded/kCancelSvg.h"
#include "embedded/kCopySvg.h"
#include "embedded/kDonateButtonSvg.h"
#include "embedded/kExpandSvg.h"
#include "embedded/kFailedSvg.h"
#include "embedded/kPassedSvg.h"
#include "embedded/kSearchStripSvg.h"
#include "embedded/kShrinkSvg.h"
#include "embedded/kStopSvg.h"
#include "embedded/kToolbarAboutSvg.h"
#include "embedded/kToolbarAnagramSvg.h"
#include "embedded/kToolbarDonateSvg.h"
#include "embedded/kToolbarExitSvg.h"
#include "embedded/kToolbarHelpSvg.h"
#include "embedded/kToolbarSearchSvg.h"
#include "embedded/kToolbarSmileySvg.h"

namespace brelex {

namespace {

wxBitmapBundle ButtonPicture(const char* svg) {
    return wxBitmapBundle::FromSVG(svg, wxSize(16, 16));
}

wxBitmapBundle ResultPicture(const char* svg) {
    return wxBitmapBundle::FromSVG(svg, wxSize(32, 32));
}

FilmStrip StripOf(const char* svg, int frames, const wxSize& frameSize) {
    return {wxBitmapBundle::FromSVG(svg, wxSize(frameSize.x, frameSize.y * frames)), frames,
            frameSize};
}

}  // namespace

wxBitmapBundle StopPicture() {
    return ButtonPicture(kStopSvg);
}

wxBitmapBundle CancelPicture() {
    return ButtonPicture(kCancelSvg);
}

wxBitmapBundle ExpandPicture() {
    return ButtonPicture(kExpandSvg);
}

wxBitmapBundle ShrinkPicture() {
    return ButtonPicture(kShrinkSvg);
}

wxBitmapBundle CopyPicture() {
    return ButtonPicture(kCopySvg);
}

wxBitmapBundle PassedPicture() {
    return ResultPicture(kPassedSvg);
}

wxBitmapBundle FailedPicture() {
    return ResultPicture(kFailedSvg);
}

std::array<wxBitmapBundle, kToolbarIcons.size()> ToolbarPictures() {
    constexpr std::array kSources = {
        &kToolbarSearchSvg[0], &kToolbarAnagramSvg[0], &kToolbarSmileySvg[0], &kToolbarHelpSvg[0],
        &kToolbarAboutSvg[0],  &kToolbarDonateSvg[0],  &kToolbarExitSvg[0]};
    std::array<wxBitmapBundle, kToolbarIcons.size()> pictures;
    std::transform(kSources.begin(), kSources.end(), pictures.begin(),
                   [](const char* svg) { return wxBitmapBundle::FromSVG(svg, wxSize(32, 32)); });
    return pictures;
}

wxBitmapBundle DonateButtonPicture() {
    return wxBitmapBundle::FromSVG(kDonateButtonSvg, wxSize(92, 31));
}

FilmStrip SearchFilmStrip() {
    return StripOf(kSearchStripSvg, 11, {48, 50});
}

FilmStrip AnagramFilmStrip() {
    return StripOf(kAnagramStripSvg, 15, {64, 50});
}

}  // namespace brelex

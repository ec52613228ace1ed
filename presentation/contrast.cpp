// SPDX-License-Identifier: MIT
#include "presentation/contrast.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>

namespace brelex {

namespace {

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kWhite{255, 255, 255};
constexpr int kMixingSteps = 64;

// The part of a color as light, from 0 to 1 (WCAG 2.1, "relative luminance").
double Linear(std::uint8_t part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(Rgb colour) {
    return 0.2126 * Linear(colour.red) + 0.7152 * Linear(colour.green) +
           0.0722 * Linear(colour.blue);
}

bool HasContrast(Rgb colour, std::initializer_list<Rgb> grounds, double contrast) {
    return std::all_of(grounds.begin(), grounds.end(),
                       [&](Rgb ground) { return ContrastRatio(colour, ground) >= contrast; });
}

// The first mixture that has this contrast to each of the grounds.
std::optional<Rgb> MixUntilSeen(Rgb from, Rgb towards, std::initializer_list<Rgb> grounds,
                                double contrast) {
    for (int step = 0; step <= kMixingSteps; ++step) {
        const Rgb mixed = Mix(from, towards, static_cast<double>(step) / kMixingSteps);
        if (HasContrast(mixed, grounds, contrast)) {
            return mixed;
        }
    }
    return std::nullopt;
}

// The mixture with the first of these colors that leads to a line that is seen.
Rgb FirstSeen(Rgb from, std::initializer_list<Rgb> towards, std::initializer_list<Rgb> grounds,
              double contrast) {
    for (const Rgb& target : towards) {
        if (const auto mixed = MixUntilSeen(from, target, grounds, contrast)) {
            return *mixed;
        }
    }
    return from;
}

}  // namespace

double ContrastRatio(Rgb one, Rgb other) {
    constexpr double kFlare = 0.05;
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + kFlare) / (darker + kFlare);
}

bool IsDark(Rgb ground) {
    return ContrastRatio(ground, kWhite) > ContrastRatio(ground, kBlack);
}

Rgb Mix(Rgb from, Rgb towards, double share) {
    const auto mixed = [share](std::uint8_t one, std::uint8_t other) {
        return static_cast<std::uint8_t>(std::lround(one + (other - one) * share));
    };
    return {mixed(from.red, towards.red), mixed(from.green, towards.green),
            mixed(from.blue, towards.blue)};
}

EdgeColours VisibleEdges(Rgb face, EdgeColours system) {
    // A theme with strong lines wants all sides of a frame to be strong.
    const bool isStrong = HasContrast(system.shadow, {face}, kStrongLineContrast) &&
                          !HasContrast(system.light, {face}, kLineContrast);
    const double contrast = isStrong ? kStrongLineContrast : kLineContrast;
    const Rgb light = FirstSeen(system.light, {kWhite, system.shadow, kBlack}, {face}, contrast);
    const Rgb shadow = FirstSeen(system.shadow, {kBlack, kWhite}, {face, light}, kLineContrast);
    return {light, shadow};
}

Rgb ReadableOn(Rgb ground, Rgb colour) {
    return IsDark(ground) ? MixUntilSeen(colour, kWhite, {ground}, kTextContrast).value_or(kWhite)
                          : colour;
}

Rgb HotFace(Rgb face, Rgb text, bool isPressed) {
    constexpr double kHot = 0.07;
    constexpr double kPressed = 0.2;
    return Mix(face, text, isPressed ? kPressed : kHot);
}

}  // namespace brelex

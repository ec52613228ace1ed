// SPDX-License-Identifier: MIT
#include "presentation/contrast.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

namespace brelex {
namespace {

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kWhite{255, 255, 255};

TEST(ContrastRatio, IsThatOfWcag) {
    EXPECT_DOUBLE_EQ(ContrastRatio(kBlack, kWhite), 21);
    EXPECT_DOUBLE_EQ(ContrastRatio(kWhite, kBlack), 21);
    EXPECT_DOUBLE_EQ(ContrastRatio({12, 200, 7}, {12, 200, 7}), 1);
    EXPECT_NEAR(ContrastRatio({119, 119, 119}, kWhite), 4.48, 0.005);  // the usual example
    EXPECT_NEAR(ContrastRatio({255, 0, 0}, kWhite), 4.0, 0.005);
    EXPECT_NEAR(ContrastRatio({10, 10, 10}, kBlack), 1.061, 0.0005);
}

TEST(IsDark, TellsWhichTextIsReadBetter) {
    EXPECT_TRUE(IsDark(kBlack));
    EXPECT_TRUE(IsDark({53, 53, 53}));
    EXPECT_TRUE(IsDark({117, 117, 117}));
    EXPECT_FALSE(IsDark({119, 119, 119}));
    EXPECT_FALSE(IsDark({246, 245, 244}));
}

TEST(Mix, GoesFromOneColorToTheOther) {
    EXPECT_EQ(Mix({10, 20, 30}, {110, 0, 30}, 0), (Rgb{10, 20, 30}));
    EXPECT_EQ(Mix({10, 20, 30}, {110, 0, 30}, 0.5), (Rgb{60, 10, 30}));
    EXPECT_EQ(Mix({10, 20, 30}, {110, 0, 30}, 1), (Rgb{110, 0, 30}));
}

TEST(VisibleEdges, KeepsAPairThatIsSeen) {
    const EdgeColours pair{.light = {255, 255, 255}, .shadow = {100, 100, 100}};
    EXPECT_EQ(VisibleEdges({192, 192, 192}, pair), pair);
}

struct Theme {
    const char* name;
    Rgb face;
    EdgeColours system;
};

TEST(VisibleEdges, AreSeenAndToldApartInEachTheme) {
    const std::vector<Theme> themes = {
        {"light desktop", {246, 245, 244}, {{248, 248, 247}, {205, 199, 194}}},
        {"dark desktop", {53, 53, 53}, {{55, 55, 55}, {27, 27, 27}}},
        {"classic", {240, 240, 240}, {{255, 255, 255}, {160, 160, 160}}},
        {"older classic", {212, 208, 200}, {{255, 255, 255}, {128, 128, 128}}},
        {"white on black", kBlack, {kWhite, {128, 128, 128}}},
        {"all black", kBlack, {kBlack, kBlack}},
        {"all white", kWhite, {kWhite, kWhite}},
        {"middle gray", {128, 128, 128}, {{128, 128, 128}, {128, 128, 128}}},
    };
    for (const Theme& theme : themes) {
        SCOPED_TRACE(theme.name);
        const EdgeColours edges = VisibleEdges(theme.face, theme.system);
        EXPECT_GE(ContrastRatio(edges.light, theme.face), 1.3);
        EXPECT_GE(ContrastRatio(edges.shadow, theme.face), 1.3);
        EXPECT_GE(ContrastRatio(edges.light, edges.shadow), 1.3);
    }
}

TEST(VisibleEdges, AreStrongOnAllSidesInAThemeOfHighContrast) {
    const Rgb face{253, 253, 252};
    const EdgeColours edges = VisibleEdges(face, {{255, 255, 255}, {135, 123, 110}});
    EXPECT_GE(ContrastRatio(edges.light, face), 3);
    EXPECT_GE(ContrastRatio(edges.shadow, face), 3);
    EXPECT_GE(ContrastRatio(edges.light, edges.shadow), 1.3);
}

TEST(VisibleEdges, StayAsNearToTheThemeAsTheyCan) {
    const EdgeColours dark = VisibleEdges({53, 53, 53}, {{55, 55, 55}, {27, 27, 27}});
    EXPECT_LT(ContrastRatio(dark.light, Rgb{53, 53, 53}), 1.4);
    EXPECT_EQ(dark.shadow, (Rgb{27, 27, 27}));
    const EdgeColours light = VisibleEdges({246, 245, 244}, {{248, 248, 247}, {205, 199, 194}});
    EXPECT_LT(ContrastRatio(light.light, Rgb{246, 245, 244}), 1.4);
    EXPECT_LT(ContrastRatio(light.light, light.shadow), 1.4);
}

TEST(VisibleEdges, GoAsFarAsBlackAndWhiteIfTheyMust) {
    const Rgb dark{34, 34, 34};
    EXPECT_EQ(VisibleEdges(dark, {kWhite, dark}).shadow, (Rgb{2, 2, 2}));
    // A lighter gray than 254 is white.
    EXPECT_EQ(VisibleEdges({225, 225, 225}, {{199, 199, 199}, {160, 160, 160}}).light, kWhite);
}

TEST(VisibleEdges, AreMixedInSmallSteps) {
    EXPECT_EQ(VisibleEdges(kWhite, {kWhite, kWhite}),
              (EdgeColours{.light = {223, 223, 223}, .shadow = {195, 195, 195}}));
}

TEST(ReadableOn, LeavesTheChosenColorsOnALightGround) {
    for (const Rgb colour : {Rgb{255, 0, 0}, Rgb{192, 0, 0}, Rgb{0, 0, 255}}) {
        EXPECT_EQ(ReadableOn(kWhite, colour), colour);
        EXPECT_EQ(ReadableOn({246, 245, 244}, colour), colour);
    }
}

TEST(ReadableOn, LightensColorsUntilTheyAreReadOnADarkGround) {
    for (const Rgb ground : {kBlack, Rgb{45, 45, 45}, Rgb{53, 53, 53}}) {
        for (const Rgb colour : {Rgb{255, 0, 0}, Rgb{192, 0, 0}, Rgb{0, 0, 255}}) {
            const Rgb text = ReadableOn(ground, colour);
            EXPECT_GE(ContrastRatio(text, ground), 4.5);
            // The hue stays.
            EXPECT_EQ(text.red > text.blue, colour.red > colour.blue);
        }
    }
    EXPECT_EQ(ReadableOn(kBlack, {255, 255, 0}), (Rgb{255, 255, 0}));
}

TEST(HotFace, TellsThreeStatesApart) {
    for (const auto& [face, text] :
         {std::array{Rgb{246, 245, 244}, Rgb{46, 52, 54}}, std::array{Rgb{53, 53, 53}, kWhite},
          std::array{kBlack, kWhite}, std::array{Rgb{240, 240, 240}, kBlack}}) {
        const Rgb hot = HotFace(face, text, false);
        const Rgb pressed = HotFace(face, text, true);
        EXPECT_GT(ContrastRatio(hot, face), 1.08);
        EXPECT_GT(ContrastRatio(pressed, face), 1.3);
        EXPECT_GT(ContrastRatio(pressed, hot), 1.15);
    }
}

}  // namespace
}  // namespace brelex

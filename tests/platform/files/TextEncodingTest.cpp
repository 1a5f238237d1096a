#include "platform/files/TextEncoding.h"

namespace kinalyx::test {
namespace {

TEST(TextEncoding, EveryByteOfTheOldEncodingComesBack) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string text = FromWindows1252(all);
  EXPECT_TRUE(IsValidUtf8(text));
  EXPECT_EQ(ToWindows1252(text), all);
  EXPECT_EQ(FromWindows1252("\x80\x9F\xFC\x81"), "\xE2\x82\xAC\xC5\xB8\xC3\xBC\xC2\x81");
}

TEST(TextEncoding, WhatDoesNotFitBecomesAQuestionMark) {
  EXPECT_EQ(ToWindows1252("a\xC4\x8D\xE2\x86\x92\xF0\x9F\x8F\x8C"
                          "b"),
            "a???b");
  EXPECT_EQ(ToWindows1252("cut \xE2\x82"), "cut ??");
}

TEST(TextEncoding, RefusesWhatIsNoUtf8) {
  for (const char* bad : {"\xC3", "\x80", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                          "\xF8\x88\x80\x80\x80", "a\xFF"})
    EXPECT_FALSE(IsValidUtf8(bad)) << bad;
  EXPECT_TRUE(IsValidUtf8("plain, \xC3\xBC, \xE2\x82\xAC, \xF0\x9F\x8F\x8C"));
  EXPECT_EQ(AsUtf8("\xFC"), "\xC3\xBC");
  EXPECT_EQ(AsUtf8("\xC3\xBC"), "\xC3\xBC");
}

TEST(TextEncoding, ComparesWithoutRegardToCase) {
  EXPECT_EQ(FoldCase("GROSSE \xC3\x84PFEL \xC5\xA0koda \xC5\xB8 \xC3\x97"),
            "grosse \xC3\xA4pfel \xC5\xA1koda \xC3\xBF \xC3\x97");
  EXPECT_EQ(FoldCase("\xC5\x81\xC3\xB3"
                     "d\xC5\xB9"),
            "\xC5\x82\xC3\xB3"
            "d\xC5\xBA");
  EXPECT_EQ(FoldCase("\u03A3\u03AF\u03C3\u03C5\u03C6\u03BF\u03C2 \u0416\u0423\u041A"),
            FoldCase("\u03C3\u038A\u03A3\u03A5\u03A6\u039F\u03A3 \u0436\u0443\u043A"))
      << "Greek and Cyrillic";
  EXPECT_EQ(FoldCase("Stra\u00DFe"), "stra\u00DFe") << "no two names for one folder";
  EXPECT_EQ(LowerCase("\u039F\u0394\u039F\u03C2 \u00C4"), "\u03BF\u03B4\u03BF\u03C2 \u00E4")
      << "the last letter keeps its form";
  EXPECT_EQ(FoldCase("raw \xFF byte"), "raw \xFF byte");
}

TEST(TextEncoding, NeverCutsACharacterInTwo) {
  const std::string text =
      "a\xE2\x82\xAC"
      "b";
  for (const auto& [bytes, kept] : {std::pair{0, 0}, {1, 1}, {3, 1}, {4, 4}, {99, 5}})
    EXPECT_EQ(CutUtf8(text, static_cast<std::size_t>(bytes)), text.substr(0, static_cast<std::size_t>(kept)));
}

}  // namespace
}  // namespace kinalyx::test

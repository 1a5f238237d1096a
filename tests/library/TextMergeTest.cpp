#include "library/TextMerge.h"

#include <gtest/gtest.h>

#include <string>

namespace kinalyx {
namespace {

TEST(TextMerge, KeepsTheChangesOfBoth) {
  struct Case {
    const char* story;
    const char* base;
    const char* mine;
    const char* theirs;
    const char* merged;
  };
  const Case cases[] = {
      {"both add a line", "hips\r\n", "hips\r\nhead\r\n", "grip\r\nhips\r\n", "grip\r\nhips\r\nhead\r\n"},
      {"one corrects a word, the other deletes a line", "slow bakswing\nhead up\nend", "slow backswing\nhead up\nend",
       "slow bakswing\nend", "slow backswing\nend"},
      {"two lines that are neighbours", "a\nb\n", "a\nB\n", "A\nb\n", "A\nB\n"},
      {"what one has deleted stays deleted", "a\nb\nc", "a\nb\nc\nd", "a\nc", "a\nc\nd"},
      {"deleted here, changed there", "a\nb\nc\n", "a\n", "a\nB\nc\n", "a\nB\n"},
      {"both correct the same line", "x\nnog\ny", "x\nnogi\ny", "x\nnoga\ny", "x\nnogi\nnoga\ny"},
      {"both add the same", "a", "a\nŻółw", "a\nŻółw", "a\nŻółw"},
      {"both add at one place", "a\n", "a\nmine\n", "a\ntheirs\n", "a\nmine\ntheirs\n"},
      {"both add paragraphs of which some are the same", "a\n", "a\n\nx\n\nmine\n", "a\n\nx\n\ntheirs\n",
       "a\n\nx\n\nmine\ntheirs\n"},
      {"one empties the notes, the other adds to them", "a\nb", "", "a\nb\nc", "c"},
      {"one adds to a line that the other corrects", "x", "x\nm", "y", "y\nm"},
      {"one goes on in a line before which the other writes", "a\n日本\n", "a\n日本語\n", "a\nb\n日本\n",
       "a\nb\n日本語\n"},
      {"both begin", "", "mine", "theirs", "mine\r\ntheirs"},
  };
  for (const Case& one : cases) EXPECT_EQ(MergeTexts(one.base, one.mine, one.theirs), one.merged) << one.story;
}

TEST(TextMerge, LosesNothingOfALongText) {
  std::string base, mine, theirs;
  for (int line = 0; line < 5000; ++line) {
    const std::string number = std::to_string(line) + "\n";
    base += number;
    mine += "mine " + number;
    theirs += line == 4000 ? "theirs\n" : number;
  }
  const std::string merged = MergeTexts(base, mine, theirs);
  EXPECT_NE(merged.find("\ntheirs\n"), std::string::npos);
  EXPECT_EQ(merged.size(), mine.size() + std::string_view("theirs\n").size());
}

}  // namespace
}  // namespace kinalyx

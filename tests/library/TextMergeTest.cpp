#include "library/TextMerge.h"

#include <gtest/gtest.h>

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
      {"what one has deleted stays deleted", "a\nb\nc", "a\nb\nc\nd", "a\nc", "a\nc\nd"},
      {"both correct the same line", "x\nnog\ny", "x\nnogi\ny", "x\nnoga\ny", "x\nnogi\nnoga\ny"},
      {"both add the same", "a", "a\nŻółw", "a\nŻółw", "a\nŻółw"},
      {"both add at one place", "a\n", "a\nmine\n", "a\ntheirs\n", "a\nmine\ntheirs\n"},
      {"one empties the notes, the other adds to them", "a\nb", "", "a\nb\nc", "c"},
      {"one adds to a line that the other corrects", "x", "x\nm", "y", "m\ny"},
      {"both begin", "", "mine", "theirs", "mine\ntheirs"},
  };
  for (const Case& one : cases) EXPECT_EQ(MergeTexts(one.base, one.mine, one.theirs), one.merged) << one.story;
}

}  // namespace
}  // namespace kinalyx

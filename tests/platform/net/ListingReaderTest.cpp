#include "platform/net/ListingReader.h"

#include <gmock/gmock.h>

#include <ostream>

namespace kinalyx {

void PrintTo(const ServerEntry& entry, std::ostream* out) {
  *out << entry.name << (entry.folder ? "/ " : " ") << entry.bytes;
}

namespace test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Entries = std::vector<ServerEntry>;

TEST(ListingReaderTest, WhatServersTell) {
  EXPECT_EQ(ReadListing(ListingForm::Facts,
                        "type=cdir;modify=20260101120000; .\r\nType=pdir; ..\r\n"
                        "type=dir;size=4096; Drivers & irons\r\n"
                        "type=file;size=5120;perm=r; スイング.avi\r\n"
                        "type=OS.unix=slink:/x;  blank in front\r\n")
                .entries,
            (Entries{{"Drivers & irons", true, -1}, {"スイング.avi", false, 5120}, {" blank in front", false, -1}}));
  EXPECT_EQ(ReadListing(ListingForm::Long,
                        "total 12\n"
                        "drwxr-xr-x   2 anna     users        4096 Jan  2 10:15 May  1 2026\r\n"
                        "-rw-r--r--   1 domain users 12345678901 Dec 31  2025 a  b.avi\r\n"
                        "-rw-r--r--   1 0 0 7 2. Mär 10:15 c.avi\r\n"
                        "-rw-r--r--+  1 0 0 8 2026-01-02 10:15 d.avi\n"
                        "lrwxrwxrwx   1 0 0 9 Jan  2 10:15 link -> ../../x\n"
                        "-rw-r--r--   1 anna 6 Jan  2 10:15 e.avi")
                .entries,
            (Entries{{"May  1 2026", true, -1},
                     {"a  b.avi", false, 12345678901},
                     {"c.avi", false, 7},
                     {"d.avi", false, 8},
                     {"link", false, -1},
                     {"e.avi", false, 6}}));
  EXPECT_EQ(ReadListing(ListingForm::Long,
                        "01-02-26  10:15AM       <DIR>          Long Game\r\n"
                        "01-02-2026  22:15             1,234,567 swing 1.avi\r\n")
                .entries,
            (Entries{{"Long Game", true, -1}, {"swing 1.avi", false, 1234567}}));
  EXPECT_EQ(ReadListing(ListingForm::Names, "a\nb c\r\n").entries, (Entries{{"a"}, {"b c"}}));
}

TEST(ListingReaderTest, NamesThatAreNoneAreLeftOut) {
  EXPECT_THAT(ReadListing(ListingForm::Facts,
                          "type=file; ../../x\ntype=file; \ntype=dir; ..\ntype=file; a\x01b\n"
                          "type=file; /etc/passwd\n")
                  .entries,
              IsEmpty());
  EXPECT_THAT(ReadListing(ListingForm::Long,
                          "-rw-r--r-- 1 0 0 8 Jan  2 10:15 ../x\n"
                          "-rw-r--r-- 1 0 0 8 Jan  2 10:15 \n-rw-r--r-- 1 0 0 8 Jan")
                  .entries,
              IsEmpty());
  EXPECT_THAT(ReadListing(ListingForm::Names, "../x\n.\n..\nfolder/x\n\x7f\n\n").entries, IsEmpty());
  std::string many;
  for (std::size_t i = 0; i < kMostEntries + 5; ++i) many += "f" + std::to_string(i) + "\n";
  EXPECT_EQ(ReadListing(ListingForm::Names, many).entries.size(), kMostEntries);
}

TEST(ListingReaderTest, WhatIsNoListingIsTold) {
  EXPECT_FALSE(ReadListing(ListingForm::Long, "Volume in drive C has no label\nhello\n").understood);
  EXPECT_TRUE(ReadListing(ListingForm::Long, "total 0\r\n").understood);
  EXPECT_TRUE(ReadListing(ListingForm::Facts, "").understood);
  EXPECT_FALSE(ReadListing(ListingForm::Facts, "nonsense\n").understood);
}

}  // namespace
}  // namespace test
}  // namespace kinalyx

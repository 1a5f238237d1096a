#include "library/LibraryIndex.h"

#include "TempLibrary.h"
#include "library/LibraryIndexer.h"
#include "library/Sidecar.h"
#include "platform/files/TextSearch.h"

namespace kinalyx::test {
namespace {

TEST(TextSearch, FindsWithoutRegardToCaseAndAccentsInAllAlphabets) {
  const std::pair<const char*, const char*> texts[] = {{"Łukasz  Müller\r\n", "lukasz muller "},
                                                       {"STRAßE", "strasse"},
                                                       {"Σίσυφος", "σισυφοσ"},
                                                       {"Ёжик", "ежик"},
                                                       {"スウィング ｽｳｨﾝｸﾞ", "スウィング スウィング"}};
  for (const auto& [text, wanted] : texts) EXPECT_EQ(Findable(text), Findable(wanted)) << text;
  EXPECT_NE(Findable("が"), Findable("か"));
  EXPECT_EQ(SearchWords("  Zoë  DTL "), (std::vector<std::string>{"zoe", "dtl"}));

  const std::string notes = "He keeps his head down.\r\nŁokieć too high at the top, weight on the left foot.";
  const FoundText found = TextAround(notes, "lokiec", 8);
  EXPECT_EQ(found.text, "…d down. Łokieć too hig…");
  EXPECT_EQ(found.text.substr(found.at, found.length), "Łokieć");
  EXPECT_EQ(TextAround("Straße", "sse", 9).text, "Straße");
  EXPECT_EQ(TextAround("nothing", "x", 3).length, 0u);
}

class LibraryIndexTest : public ::testing::Test, protected IIndexEvents {
 protected:
  LibraryIndexTest() {
    fields.EnsureFile();
    fields.SetupFields();
    library.File("Anna/Müller, Zoë/(001) DTL driver.avi");
    library.File("Anna/Müller, Zoë/(002) FO iron.mp4");
    library.File("Anna/Müller, Zoë/profile.prf", "[Profile]\nName=Müller, Zoë\nWeaknesses=Slice with the driver\n");
    library.File("Anna/Müller, Zoë/profile.txt", "Bring the video of the wedge");
    library.File("Bob/Driver, Tom/putt.avi");
    library.File("loose driver.avi");
    SlotData noted;
    noted.Notes = "Łokieć!";
    EXPECT_TRUE(WriteVideoData(library.Path("Anna/Müller, Zoë/(002) FO iron.mp4.ved"), noted));
  }
  SearchResult Find(const char* typed) { return FindIn(*index, typed); }
  void Read() {
    IndexProgress progress;
    index = ReadIndex(library.Root(), fields, index.get(), progress);
  }
  void IndexCame() override { ++came; }

  TempLibrary library;
  ProfileFields fields{library.Data("fields.ini")};
  std::shared_ptr<const LibraryIndex> index;
  int came = 0;
};

TEST_F(LibraryIndexTest, FindsPeopleVideosFieldsAndNotes) {
  Read();
  SearchResult found = Find("driver");
  ASSERT_EQ(found.people.size(), 1u);
  EXPECT_EQ(found.people[0].student + "/" + found.people[0].instructor, "Driver, Tom/Bob");
  ASSERT_EQ(found.videos.size(), 2u) << "the words of a student alone are no reason to name all videos";
  EXPECT_EQ(found.videos[0].video, "loose driver");
  EXPECT_EQ(found.videos[0].instructor, "General Folder");
  ASSERT_EQ(found.texts.size(), 1u);
  EXPECT_EQ(found.texts[0].detail, "Weaknesses: Slice with the driver");

  found = Find("zoe IRON");
  EXPECT_TRUE(found.people.empty());
  ASSERT_EQ(found.videos.size(), 1u);
  EXPECT_EQ(found.videos[0].video, "(002) FO iron \u00B7 MP4");
  EXPECT_EQ(found.videos[0].student, "Müller, Zoë");
  found = Find("lokiec");
  ASSERT_EQ(found.texts.size(), 1u);
  EXPECT_EQ(found.texts[0].video, "(002) FO iron \u00B7 MP4");
  EXPECT_EQ(Find("anna").people[0].kind, SearchHit::Kind::Instructor);
  EXPECT_EQ(Find("wedge").texts[0].kind, SearchHit::Kind::StudentNotes);
  EXPECT_TRUE(Find("nobody").Empty());
  EXPECT_TRUE(Find("  ").Empty());
}

TEST_F(LibraryIndexTest, ReadsAgainOnlyWhatHasChanged) {
  Read();
  const auto before = index;
  library.File("Bob/Driver, Tom/chip.avi");
  library.File("Anna/Müller, Zoë/profile.txt", "Grip");
  Read();
  EXPECT_EQ(Find("chip").videos.size(), 1u);
  EXPECT_EQ(Find("grip").texts.size(), 1u);
  EXPECT_TRUE(Find("wedge").Empty());
  EXPECT_EQ(index->folders.front(), before->folders.front()) << "nothing has changed there";
  EXPECT_FALSE(std::filesystem::exists(library.Path("Bob/Driver, Tom/profile.prf"))) << "an index makes no files";
}

TEST_F(LibraryIndexTest, NobodyWaitsForTheDrive) {
  struct Never final : IErrand {
    bool Over(int) override { return false; }
  };
  LibraryIndexer hanging(
      library.host, [](const DriveWatch::Work&) { return std::make_shared<Never>(); }, library.Root(), fields, *this);
  hanging.Refresh();
  library.host.Advance(11000);
  EXPECT_TRUE(hanging.Silent() && !hanging.Index());
  EXPECT_EQ(came, 1);

  struct Done final : IErrand {
    bool Over(int) override { return true; }
  };
  LibraryIndexer indexer(
      library.host,
      [](const DriveWatch::Work& work) {
        work();
        return std::make_shared<Done>();
      },
      library.Root(), fields, *this);
  indexer.Refresh();
  library.host.Advance(100);
  ASSERT_TRUE(indexer.Index());
  EXPECT_FALSE(FindIn(*indexer.Index(), "zoë").Empty());
}

}  // namespace
}  // namespace kinalyx::test

#include "platform/files/IniFile.h"

#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

TEST(IniFile, ReadsAsTheUserWroteIt) {
  TempFolder folder;
  const std::string path =
      folder.Put("a.ini",
                 "Lost=outside\r\n; Name=in a comment\r\n[ General ]\r\n  User Name = Erica = Sample \r\nEmpty=\r\n"
                 "Quoted=\"as it stands\"\r\nno key here\r\n[other]\r\nEmpty=other\r\n[GENERAL]\r\nLate=second part of "
                 "the section\r\n");
  for (const auto& [section, key, value] : {std::tuple{"general", "USER name", "Erica = Sample"},
                                            {"General", "Empty", ""},
                                            {"General", "Quoted", "\"as it stands\""},
                                            {"Other", "empty", "other"},
                                            {"General", "Late", "second part of the section"}})
    EXPECT_EQ(ReadProfileValue(section, key, path), value) << key;
  for (const char* none : {"Name", "Lost", "no key here"})
    EXPECT_EQ(ReadProfileValue("General", none, path), std::nullopt) << none;
  EXPECT_EQ(ReadProfileValue("Missing", "Empty", path), std::nullopt);
  EXPECT_EQ(ReadProfileValue("General", "Empty", folder.Path("none.ini")), std::nullopt);
}

TEST(IniFile, CutsByCharactersAndFallsBack) {
  TempFolder folder;
  const std::string umlauts = "\xC3\xA4\xC3\xB6\xC3\xBC";
  const std::string path = folder.Put("a.ini", std::string("[A]\nWord=").append(umlauts).append("xyz\n"));
  for (const auto& [size, cut] :
       {std::pair{4, umlauts}, {3, umlauts.substr(0, 4)}, {50, umlauts + "xyz"}, {0, std::string()}})
    EXPECT_EQ(GetPrivateProfileString("A", "Word", "", size, path), cut);
  EXPECT_EQ(GetPrivateProfileString("A", "None", path, 6, path), path.substr(0, 5));
}

TEST(IniFile, OldFilesOfAnotherEncodingBecomeUtf8) {
  TempFolder folder;
  const std::string path = folder.Put("old.ini",
                                      "[Profil]\nGr\xF6\xDF"
                                      "e=1,80 m\nPreis=20 \x80\n");
  EXPECT_EQ(ReadProfileValue("Profil",
                             "GR\xC3\x96\xC3\x9F"
                             "E",
                             path),
            "1,80 m");
  ASSERT_TRUE(WritePrivateProfileString("Profil", "Ort", "M\xC3\xBCnchen", path));
  EXPECT_EQ(folder.Get("old.ini"),
            "[Profil]\nGr\xC3\xB6\xC3\x9F"
            "e=1,80 m\nPreis=20 \xE2\x82\xAC\nOrt=M\xC3\xBCnchen\n");

  const std::string marked = folder.Put("marked.ini", "\xEF\xBB\xBF[A]\nKey=1\n");
  EXPECT_EQ(ReadProfileValue("A", "Key", marked), "1");
}

TEST(IniFile, WritesInPlaceAndKeepsEverythingElse) {
  TempFolder folder;
  const std::string before = "; by hand\n[One]\na=1\n; between\nB = 2\n\nstrange line\n\n[Two]\nc=3";
  const std::string path = folder.Put("a.ini", before);
  ASSERT_TRUE(WritePrivateProfileString("one", "b", "changed", path));
  ASSERT_TRUE(WritePrivateProfileString("One", "New", "added", path));
  ASSERT_TRUE(WritePrivateProfileString("TWO", "d", "two\r\nlines", path));
  ASSERT_TRUE(WritePrivateProfileString("Three", "e", "", path));
  EXPECT_EQ(folder.Get("a.ini"),
            "; by hand\n[One]\na=1\n; between\nb=changed\n\nstrange line\nNew=added\n\n"
            "[Two]\nc=3\nd=two  lines\n\n[Three]\ne=\n");
  EXPECT_TRUE(DeleteProfileKey("Two", "C", path));
  EXPECT_TRUE(DeleteProfileKey("Two", "never", path));
  EXPECT_EQ(ReadProfileValue("Two", "c", path), std::nullopt);
  EXPECT_EQ(folder.FileCount(), 1u) << "nothing may be left beside the file";
}

TEST(IniFile, KeepsCarriageReturnsAndMakesMissingFiles) {
  TempFolder folder;
  const std::string dos = folder.Put("dos.ini", "[A]\r\nx=1\r\n");
  ASSERT_TRUE(WritePrivateProfileString("A", "y", "2", dos));
  EXPECT_EQ(folder.Get("dos.ini"), "[A]\r\nx=1\r\ny=2\r\n");

  const std::string fresh = folder.Path("fresh.ini");
  ASSERT_TRUE(WriteProfileEntries({{"A", "x", "1"}, {"B", "y", "2"}, {"a", "z", "3"}}, fresh));
  EXPECT_EQ(folder.Get("fresh.ini"), "[A]\nx=1\nz=3\n\n[B]\ny=2\n");
}

TEST(IniFile, RefusesWhatItCouldNotFindAgain) {
  TempFolder folder;
  const std::string path = folder.Put("a.ini", "[A]\nx=1\n");
  for (const char* key : {"", "  ", "a=b", ";a", "[a", "two\nlines"})
    EXPECT_FALSE(WritePrivateProfileString("A", key, "v", path)) << key;
  EXPECT_FALSE(WritePrivateProfileString("A]", "k", "v", path));
  EXPECT_FALSE(WriteProfileEntries({{"A", "x", "2"}, {"A", "", "3"}}, path));
  EXPECT_FALSE(WritePrivateProfileString("A", "k", "v", folder.Path("no/such/folder.ini")));
  // A file too large to be one of ours is not thrown away.
  folder.Put("huge.ini", "");
  std::filesystem::resize_file(folder.Path("huge.ini"), 80 << 20);
  EXPECT_FALSE(WritePrivateProfileString("A", "k", "v", folder.Path("huge.ini")));
  EXPECT_EQ(folder.Get("a.ini"), "[A]\nx=1\n");
}

TEST(IniFile, OneLookReadsManyKeys) {
  TempFolder folder;
  const std::string path = folder.Put("a.ini", "[A]\nx=1\ny=22\n");
  const ProfileReader reader(path);
  folder.Put("a.ini", "[A]\nx=changed\n");
  EXPECT_TRUE(reader.Open());
  EXPECT_EQ(reader.Value("a", "X"), "1");
  EXPECT_EQ(reader.String("A", "y", "", 2), "2");
  EXPECT_EQ(reader.String("A", "none", "fallback", 5), "fall");
  EXPECT_FALSE(ProfileReader(folder.Path("none.ini")).Open());
}

}  // namespace
}  // namespace kinalyx::test

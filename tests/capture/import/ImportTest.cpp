#include <gmock/gmock.h>

#include <fcntl.h>
#include <unistd.h>

#include <fstream>

#include "capture/import/ConversionTemplate.h"
#include "capture/import/ImportFiles.h"
#include "capture/import/ImportSession.h"
#include "library/Sidecar.h"
#include "library/Study.h"
#include "platform/media/Films.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using State = ImportRow::State;

TEST(ConversionTemplate, IsChosenByEndingCodecAndWidth) {
  struct Case {
    const char* file;
    const char* codec;
    int width;
    bool edge;
    const char* name;
  };
  const Case cases[] = {
      {"a.avi", "MJPG", 719, true, "MVConvertSFAMJPGtoIV50"}, {"a.AVI", "MJPG", 720, true, "MVConvertSFAMJPGtoDVEdge"},
      {"a.Avi", "MJPG", 1280, false, "MVConvertSFAMJPGtoDV"}, {"a.avi", "dvsd", 640, false, "MVConvertSFAtoIV50"},
      {"a.avi", "h264", 720, true, "MVConvertSFAtoDVEdge"},   {"a.avi", "", 1920, false, "MVConvertSFAtoDV"},
      {"a.mov", "MJPG", 352, true, "MVConvertHaalitoIV50"},   {"a.mp4", "avc1", 720, true, "MVConvertHaalitoDVEdge"},
      {"a.m2ts", "h264", 1920, false, "MVConvertHaalitoDV"},
  };
  for (const Case& one : cases) {
    const ConversionTemplate chosen = ChooseTemplate(one.file, one.codec, one.width, one.edge);
    EXPECT_EQ(chosen.name, one.name);
    EXPECT_EQ(chosen.codec == ConversionRequest::Codec::Dv, one.width >= 720) << one.name;
    EXPECT_EQ(chosen.sharpen, chosen.name.ends_with("Edge"));
  }
}

TEST(ImportFiles, GoByTheirLastThreeLettersAndMakeRoomForEachOther) {
  for (const char* name : {"a.MOV", "b.m2ts", "c.mpeg", "video_ts.vob", "d.qt", "Łódź.mp4", "e.ts"})
    EXPECT_TRUE(IsImportable(name)) << name;
  for (const char* name : {"a.ved", "b.jpg", ".mp4", "vi", "c.avi.part", "d.vob.ifo"})
    EXPECT_FALSE(IsImportable(name)) << name;

  TempFolder folder;
  for (const char* place :
       {"Converted Videos/打つ.mov", "Converted Videos/(000)打つ.mov", "Converted Videos/(001)打つ.mov"}) {
    const std::string source = folder.Put("打つ.mov", place);
    const auto moved = MoveToConverted(source);
    ASSERT_TRUE(moved) << moved.Why();
    EXPECT_EQ(*moved, folder.Path(place));
    EXPECT_EQ(folder.Get(place), place);
    EXPECT_FALSE(fs::exists(source));
  }
}

/// Names that count up, until the test takes them away.
class CountedNames final : public IVideoNaming {
 public:
  explicit CountedNames(std::string folder) : folder_(std::move(folder)) {}
  bool has = true;
  int changes = 0;

  void GetVideoName() override {
    path_.clear();
    for (int number = 1; has && path_.empty(); ++number) {
      const std::string path = folder_ + "/Video" + std::to_string(number) + ".avi";
      if (!fs::exists(path)) path_ = path;
    }
  }
  const std::string& CapturedVideoPath() const override { return path_; }
  const std::string& CapturedVideoPath2() const override { return path_; }
  void ChangeName() override { ++changes; }

 private:
  std::string folder_;
  std::string path_;
};

class Import : public testing::Test, private IImportEvents {
 protected:
  void SetUp() override {
    settings_.KeepPictureSize = 1;
    for (const char* name : {"camera", "watched", "student"}) fs::create_directories(folder_.Path(name));
    settings_.ImportFolder = folder_.Path("camera") + "/";
    settings_.AutoImportFolder = folder_.Path("watched") + "/";
  }
  std::string PutVideo(const std::string& name, int frames = 20) {
    fs::copy_file(MakeTestVideo(MjpegVideo(frames)), folder_.Path(name), fs::copy_options::overwrite_existing);
    return folder_.Path(name);
  }
  /// Until nothing is converted any more.
  void Wait() {
    for (int turn = 0; session_.Busy() && turn < 10000; ++turn) host_.Advance(1);
    EXPECT_FALSE(session_.Busy());
  }
  std::vector<State> States() const {
    std::vector<State> states;
    for (const ImportRow& row : session_.Rows()) states.push_back(row.state);
    return states;
  }
  std::string Student(const char* name) const { return folder_.Path(std::string("student/") + name); }

  TempFolder folder_;
  TestHost host_;
  Settings settings_{host_, folder_.Path("data"), folder_.Path()};
  CountedNames naming_{folder_.Path("student")};
  std::vector<std::string> imported_;
  int setups_ = 0;
  ImportSession session_{{host_, settings_, naming_, *this, JobRunner::On::HostTimer}};

 private:
  void ImportChanged() override {}
  void VideoImported(const std::string& path) override { imported_.push_back(path); }
  void GoToCaptureSetup() override { ++setups_; }
};

TEST_F(Import, AHandPickedFileIsTrimmedNamedAndSaved) {
  const std::string source = PutVideo("camera/swing.avi", 60);
  host_.manyFiles = {source};
  session_.Browse();
  ASSERT_EQ(session_.Selected(), source);
  session_.SetStartPoint(1000);
  EXPECT_EQ(session_.Status(), "Trim Excess from the END of the video or choose to Save New Video.");
  session_.SetEndPoint(500);
  EXPECT_EQ(session_.Status(), "Choose to Save New Video.");
  EXPECT_FALSE(session_.Save({source}));
  EXPECT_THAT(host_.messages.back(), HasSubstr("TRIM Start and End times are not correct"));
  session_.SetEndPoint(1500);
  naming_.has = false;
  EXPECT_FALSE(session_.Save({source}));
  EXPECT_EQ(host_.messages.back(), "You must name the video before saving!");
  EXPECT_EQ(naming_.changes, 1);
  naming_.has = true;
  ASSERT_TRUE(session_.Save({source}));
  EXPECT_EQ(session_.Status(), "Currently Importing swing.avi to filename Video1");
  session_.Select({});  // what was marked counts, wherever the user looks now
  Wait();
  EXPECT_EQ(session_.Status(), "Last Video Saved Successfully");
  EXPECT_THAT(imported_, ElementsAre(Student("Video1.avi")));
  const auto made = OpenedVideo(Student("Video1.avi"));
  EXPECT_EQ(made->Info().frameCount, 16);
  EXPECT_EQ(ReadNumber(made->Frame(0, 24)), 30);
  EXPECT_EQ(fs::file_size(Student("Video1.ved")), 8u);
  EXPECT_TRUE(fs::exists(source));
}

TEST_F(Import, ADamagedFileStopsItselfAndNeverTheChain) {
  session_.ChooseKind(ImportKind::Camera);
  EXPECT_TRUE(session_.Rows().empty());
  PutVideo("camera/a.avi");
  folder_.Put("camera/b.mp4", "no video at all");
  PutVideo("camera/c.AVI");
  folder_.Put("camera/note.txt", "");
  session_.Refresh();
  std::vector<std::string> all;
  for (const ImportRow& row : session_.Rows()) all.push_back(row.file.path);
  ASSERT_EQ(all.size(), 3u);
  ASSERT_TRUE(session_.Save(all));
  EXPECT_THAT(States(), ElementsAre(State::Converting, State::Queued, State::Queued));
  Wait();
  EXPECT_EQ(session_.Status(), "File Conversion, Save and Move Complete");
  EXPECT_THAT(States(), ElementsAre(State::Failed));
  ASSERT_EQ(host_.messages.size(), 1u);
  EXPECT_THAT(host_.messages[0], HasSubstr("Err 2238"));
  EXPECT_THAT(imported_, ElementsAre(Student("Video1.avi"), Student("Video2.avi")));
  EXPECT_TRUE(fs::exists(folder_.Path("camera/Converted Videos/a.avi")));
  EXPECT_TRUE(fs::exists(folder_.Path("camera/Converted Videos/c.AVI")));
  EXPECT_TRUE(fs::exists(folder_.Path("camera/b.mp4")));
}

TEST_F(Import, TheWatchTakesWhatHasArrivedWhole) {
  session_.ChooseKind(ImportKind::Automatic);
  EXPECT_EQ(session_.AutoStatus(), "Click to Start Auto Import");
  session_.ToggleAuto();
  EXPECT_EQ(session_.AutoCaption(), "Stop Auto Import");
  EXPECT_EQ(session_.AutoStatus(), "Automatic Import Active.... Waiting for new videos....");
  // A camera writes for ten seconds, and then keeps the file open without writing.
  const std::string path = folder_.Path("watched/ćwiczenie.avi");
  const std::string whole = [&] {
    std::ifstream in(MakeTestVideo(MjpegVideo(20)), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }();
  for (int second = 0; second < 10; ++second) {
    folder_.Put("watched/ćwiczenie.avi", whole.substr(0, whole.size() * static_cast<std::size_t>(second + 1) / 10));
    host_.Advance(1000);
    EXPECT_FALSE(session_.Busy());
  }
  const int writer = ::open(path.c_str(), O_WRONLY);
  host_.Advance(10000);
  EXPECT_THAT(States(), ElementsAre(State::Arriving));
  EXPECT_EQ(session_.AutoStatus(), "Automatic Import Active.... Waiting for new videos....");
  ::close(writer);
  session_.ChooseKind(ImportKind::Automatic);  // the page has been left and opened again
  host_.Advance(1000);
  EXPECT_EQ(session_.AutoStatus(), "Importing ćwiczenie.avi to filename Video1 in 5 seconds.");
  host_.Advance(2000);
  EXPECT_EQ(session_.AutoStatus(), "Importing ćwiczenie.avi to filename Video1 in 3 seconds.");
  host_.Advance(3000);
  Wait();
  EXPECT_THAT(imported_, ElementsAre(Student("Video1.avi")));
  EXPECT_TRUE(session_.Rows().empty());

  // One that cannot be read is tried once.
  folder_.Put("watched/bad.mov", "no video");
  host_.Advance(60000);
  EXPECT_EQ(host_.messages.size(), 1u);
  EXPECT_TRUE(session_.AutoActive());
  fs::rename(folder_.Path("watched"), folder_.Path("gone"));
  host_.Advance(1000);
  EXPECT_TRUE(session_.FolderGone());
  fs::rename(folder_.Path("gone"), folder_.Path("watched"));
  PutVideo("watched/next.avi");
  host_.Advance(10000);
  Wait();
  EXPECT_EQ(imported_.size(), 2u);
  session_.ToggleAuto();
  EXPECT_EQ(session_.AutoStatus(), "Click to Start Auto Import");
}

TEST_F(Import, WithoutAFolderTheSetupOpens) {
  settings_.ImportFolder = settings_.AutoImportFolder = "";
  session_.ChooseKind(ImportKind::Automatic);
  session_.ToggleAuto();
  EXPECT_THAT(host_.messages.back(), HasSubstr("Before using the Auto Import feature"));
  session_.ChooseKind(ImportKind::Camera);
  EXPECT_FALSE(session_.Save({"x.avi"}));
  EXPECT_THAT(host_.messages.back(), HasSubstr("Before importing video from your camera"));
  EXPECT_EQ(setups_, 2);
  EXPECT_FALSE(session_.AutoActive());
}

TEST_F(Import, GivenUpInTheMiddleLeavesNothing) {
  const std::string one = PutVideo("camera/a.avi", 300);
  const std::string two = PutVideo("camera/b.avi");
  ASSERT_TRUE(session_.AddFiles({folder_.Path("camera")}));
  ASSERT_TRUE(session_.Save({one, two}));
  host_.Advance(20);
  ASSERT_TRUE(session_.Busy());
  session_.CancelConversion();
  Wait();
  EXPECT_THAT(States(), ElementsAre(State::Stopped, State::Waiting));
  EXPECT_EQ(session_.Status(), "Last Video WAS NOT SAVED");
  EXPECT_TRUE(fs::is_empty(folder_.Path("student")));
  EXPECT_TRUE(imported_.empty());
}

TEST_F(Import, TheSidecarTellsOfFieldsOfWideTapeAndOfTheTrueRate) {
  Film film{"hd.mov", "mpeg2video", 4, 1, 0};
  film.width = 1280;
  film.height = 720;
  film.paint = [](AVFrame& picture, int) { picture.interlaced_frame = picture.top_field_first = 1; };
  film.metadata = {{"com.android.capture.fps", "240"}};
  film.muxing = "movflags=use_metadata_tags";
  film.tune = [](AVCodecContext& codec) {
    codec.flags |= AV_CODEC_FLAG_INTERLACED_DCT;
    codec.field_order = AV_FIELD_TT;
  };
  MakeFilm(film, folder_.Path("camera/hd.mov"));
  ASSERT_TRUE(session_.AddFiles({folder_.Path("camera/hd.mov")}));
  for (const bool keep : {true, false}) {
    settings_.KeepPictureSize = keep;
    ASSERT_TRUE(session_.Save({folder_.Path("camera/hd.mov")}));
    Wait();
    const std::string path = imported_.back();
    const auto info = ReadVideoInfo(path);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->width, keep ? 1280 : 720);
    SlotData data = ReadVideoData(SidecarPath(path), *info, {});
    ReadStudy(StudyPath(path), data);
    EXPECT_EQ(data.Study.TrueRate, 240);
    EXPECT_TRUE(data.Wide && data.SplitFields);
    EXPECT_EQ(data.ReverseFields, !keep);
  }
}

}  // namespace
}  // namespace kinalyx::test

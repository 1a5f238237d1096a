#include "distribution/models/ModelVideos.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "platform/net/NetFixture.h"
#include "support/TempFolder.h"
#include "support/TestDesk.h"
#include "support/TestServers.h"

namespace kinalyx::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A server of model videos, and a library beside it.
class ModelVideosTest : public testing::Test, public TestDesk, public IModelVideosEvents {
 protected:
  bool Start() {
    mail.LoadMailSettings();
    server_ = std::make_unique<TestServer>(std::vector<std::string>{"ftp", there.Path()});
    mail.Set(&MailSettings::ModelServer, "localhost:" + std::to_string(server_->Port()));
    mail.Set(&MailSettings::ModelLogin, kTestLogin);
    mail.Set(&MailSettings::ModelPassword, kTestPassword);
    models = std::make_unique<ModelVideos>(
        ModelVideos::Parts{
            .host = host,
            .settings = settings,
            .mail = mail,
            .makeServer = [](ServerLogin login) { return MakeFileServer(std::move(login), ShortLimits()); },
            .on = JobRunner::On::HostTimer},
        *this);
    return server_->Port() > 0;
  }
  void Put(const std::string& path, const std::string& bytes) {
    const std::filesystem::path whole = there.Path("modelvideos/" + path);
    std::filesystem::create_directories(whole.parent_path());
    std::ofstream(whole, std::ios::binary) << bytes;
  }
  void Wait() {
    while (models->Busy()) host.Advance(50);
  }
  void GoTo(int folder, int subfolder) {
    models->Open();
    Wait();
    models->ChooseFolder(folder);
    Wait();
    models->ChooseSubfolder(subfolder);
    Wait();
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const ModelVideo& video : models->Videos()) names.push_back(video.name);
    return names;
  }
  std::string Here(const std::string& path) const { return settings.LibraryPath + "/" + path; }

  void ModelsChanged() override {}
  void ModelsFailed(const std::string& title, const std::string& text) override {
    failed.push_back(title + "|" + text);
  }

  TempFolder there;
  MailSettings mail{settings.DataPath};
  std::unique_ptr<TestServer> server_;
  std::vector<std::string> failed;
  std::unique_ptr<ModelVideos> models;  // goes before what it tells
};

TEST_F(ModelVideosTest, VideosComeWithTheirDrawingsUnderTheNamesOfTheServer) {
  Put("Golf/Łukasz 姿勢/Driver.avi", "driver");
  Put("Golf/Łukasz 姿勢/Driver.ved", "drawings");
  Put("Golf/Łukasz 姿勢/Iron.MP4", "iron");
  Put("Golf/Łukasz 姿勢/Iron.MP4.ved", "its drawings");
  Put("Golf/Łukasz 姿勢/notes.txt", "no video");
  Put("Golf/Łukasz 姿勢/Iron 10.avi", "");
  Put("Golf/Łukasz 姿勢/iron 9.avi", "");
  Put("Golf/a=b/x.avi", "a name that the library does not take");
  NEEDS(Start());
  GoTo(0, 0);
  EXPECT_THAT(models->Folders(), ElementsAre("Golf"));
  EXPECT_THAT(models->Subfolders(), ElementsAre("Łukasz 姿勢"));
  EXPECT_THAT(Names(), ElementsAre("Driver.avi", "iron 9.avi", "Iron 10.avi", "Iron.MP4"));
  models->Download({0, 3, 7});
  Wait();
  EXPECT_EQ(models->Status(), "Download Complete");
  const std::string folder = Here("Golf/Łukasz 姿勢/");
  EXPECT_EQ(BytesOf(folder + "Driver.avi"), "driver");
  EXPECT_EQ(BytesOf(folder + "Driver.ved"), "drawings");
  EXPECT_EQ(BytesOf(folder + "Iron.MP4.ved"), "its drawings");
  // Again: what is there stays as it is.
  std::ofstream(folder + "Iron.MP4") << "mine";
  std::filesystem::remove(folder + "Driver.avi");
  models->Download({0, 3});
  Wait();
  EXPECT_EQ(models->Status(), "Download Complete. 1 was in your library already.");
  EXPECT_EQ(BytesOf(folder + "Iron.MP4"), "mine");
  EXPECT_EQ(BytesOf(folder + "Driver.avi"), "driver");
  EXPECT_THAT(failed, ElementsAre());
}

TEST_F(ModelVideosTest, WithoutAServerNothingIsAsked) {
  NEEDS(Start());
  mail.Set(&MailSettings::ModelServer, "");
  models->Open();
  EXPECT_FALSE(models->Busy());
  mail.Set(&MailSettings::ModelServer, "http://models.example");
  models->Open();
  EXPECT_THAT(failed, ElementsAre(HasSubstr("must begin with ftp://")));
}

TEST_F(ModelVideosTest, WhatIsMissingIsTold) {
  NEEDS(Start());
  models->Open();
  Wait();
  EXPECT_THAT(failed, ElementsAre("Cannot find directories.|Cannot find directories. Please try again."));
  Put("Golf/Driver/notes.txt", "no video");
  GoTo(0, 0);
  EXPECT_EQ(failed.back(), "Cannot find files.|Cannot find files. Please try again.");
  server_.reset();
  models->Open();
  Wait();
  EXPECT_THAT(failed.back(), HasSubstr("Internet connection failed.|Cannot connect to the Internet"));
  EXPECT_EQ(models->Status(), "Idle");
}

TEST_F(ModelVideosTest, ADownloadThatBreaksLeavesNothingHalf) {
  Put("Golf/Driver/Long.avi", std::string(3'000'000, 'x'));
  Put("Golf/Driver/Long.ved", "drawings");
  NEEDS(Start());
  GoTo(0, 0);
  std::filesystem::remove(there.Path("modelvideos/Golf/Driver/Long.avi"));
  models->Download({0});
  Wait();
  EXPECT_THAT(failed, ElementsAre(HasSubstr("\"Long.avi\": The server has no such file")));
  EXPECT_TRUE(std::filesystem::is_empty(Here("Golf/Driver"))) << "its drawings neither";
}

TEST(SelectedTextTest, CountsFiles) {
  EXPECT_EQ(SelectedText(0), "0 files selected for download.");
  EXPECT_EQ(SelectedText(1), "1 file selected for download.");
  EXPECT_EQ(SelectedText(12), "12 files selected for download.");
}

}  // namespace
}  // namespace kinalyx::test

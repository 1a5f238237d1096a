#pragma once

#include <memory>
#include <set>

#include "../library/LibraryFakes.h"
#include "../library/TempLibrary.h"
#include "FormDriver.h"
#include "FormsSupport.h"
#include "library/forms/PreviewPlayer.h"
#include "library/forms/ProfilesPage.h"
#include "support/TestPrinter.h"
#include "support/TestVideos.h"

namespace kinalyx::test {

/// The profiles page over a small library, with long operations done turn by turn.
class ProfilesStage : public ::testing::Test, protected UsesApplication, protected FormDriver {
 protected:
  ProfilesStage() {
    fields.EnsureFile();
    fields.SetupFields();
    library.Folder("Demo/Sample, Erica");
    library.Folder("Demo/Tom");
    library.Folder("Quick Launch");
    AddVideo("Demo/Sample, Erica/(001) DTL driver.avi");
    AddVideo("Demo/Sample, Erica/(002) FO iron.avi");
    library.File("Demo/Sample, Erica/(002) FO iron.ved", "1XXXSNXX");
    MakePage({JobRunner::On::HostTimer});
  }

  void MakePage(LibraryOperations::Environment environment) {
    page.reset();
    operations = std::make_unique<LibraryOperations>(library.host, library.settings, analysis, environment);
    page = std::make_unique<ProfilesPage>(services, printer, library.settings, fields, remembered, *operations, nullptr,
                                          DeviceWatch::Environment{[this] { return devices; }, send_}, GlanceStore(""));
    page->resize(892, 700);
    page->show();
    page->Open();
  }

  /// Comes back to the page, which has been left.
  void Return() {
    page->show();
    page->Open();
  }
  void LeavePage() {
    page->Leave();
    page->hide();
  }

  /// Chooses a student of the instructor "Demo".
  void ChooseStudent(const QString& student) {
    Choose("InstructorList", "Demo");
    Choose("StudentList", student);
  }
  void AddVideo(const std::string& name) {
    const std::string video = MakeTestVideo(MjpegVideo(8));
    ASSERT_FALSE(video.empty());
    std::filesystem::copy_file(video, library.File(name), std::filesystem::copy_options::overwrite_existing);
  }

  /// Lets a long operation run to its end.
  void Work() {
    for (int turn = 0; operations->Busy() && turn < 10000; ++turn) library.host.Advance(1);
    ASSERT_FALSE(operations->Busy());
  }
  bool Exists(const std::string& name) const { return std::filesystem::exists(library.Path(name)); }
  std::string Read(const std::string& name) const { return TempLibrary::Read(library.Path(name)); }
  AVIControl& Preview() { return page->findChild<PreviewPlayer*>()->Control(); }

  TempLibrary library;
  PlayScheduler scheduler{library.host};
  PlayerServices services{library.host, scheduler};
  TestPrinter printer;
  ProfileFields fields{library.Data("fields.ini")};
  LastStudentInfo remembered;
  FakeAnalysis analysis;
  std::set<std::string>& open = analysis.open;
  std::vector<std::string>& sent = analysis.sent;
  std::unique_ptr<LibraryOperations> operations;
  std::vector<DevicePlace> devices;  ///< that are plugged in
  bool devicesHang = false;          ///< what they are asked from now on never comes back
  std::unique_ptr<ProfilesPage> page;

 private:
  struct Errand final : IErrand {
    explicit Errand(bool over) : over_(over) {}
    bool Over(int) override { return over_; }

   private:
    bool over_;
  };
  DriveWatch::Send send_ = [this](const DriveWatch::Work& work) {
    if (!devicesHang) work();
    return std::make_shared<Errand>(!devicesHang);
  };

  QWidget& Form() override { return *page; }
};

}  // namespace kinalyx::test

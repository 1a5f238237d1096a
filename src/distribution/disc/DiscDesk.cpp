#include "distribution/disc/DiscDesk.h"

#include <array>
#include <ctime>
#include <utility>

#include "core/Heading.h"
#include "distribution/send/FilesToSend.h"
#include "library/LibraryTree.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

/// A drive that loads a disc takes its time, but not this much.
constexpr int kPatienceMs = 60'000;

std::string Today() {
  const std::time_t now = std::time(nullptr);
  std::tm day{};
  localtime_r(&now, &day);
  std::array<char, 16> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d", &day);
  return text.data();
}

}  // namespace

/// One question to a drive.
class DiscDesk::Visit final : public IJob {
 public:
  Visit(std::unique_ptr<IDiscDrive> drive, Wants wants) : drive_(std::move(drive)), wants_(wants) {}

  bool Step() override {
    if (wants_ == Wants::Eject) {
      how = drive_->Eject();
    } else if (auto told = drive_->TestUnitReady(); told) {
      report = std::move(*told);
    } else {
      how = told.Failure();
    }
    return false;
  }
  void Cancel() override { how = Outcome(Fault::Cancelled, ""); }
  JobProgress Progress() const override { return {}; }

  Outcome how;
  std::optional<DriveReport> report;

 private:
  std::unique_ptr<IDiscDrive> drive_;
  Wants wants_;
};

class DiscDesk::VisitEnd final : public IJobEvents {
 public:
  VisitEnd(DiscDesk& desk, Wants wants) : desk_(desk), wants_(wants) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override { desk_.Over(wants_, static_cast<const Visit*>(job)); }

 private:
  DiscDesk& desk_;
  Wants wants_;
};

DiscDesk::DiscDesk(IHost& host, Settings& settings, IDiscDrives& drives, IDiscDeskEvents& events, Places places,
                   JobRunner::On on)
    : host_(host),
      settings_(settings),
      machine_(drives),
      events_(events),
      places_(std::move(places)),
      runner_(host, on) {}

DiscDesk::~DiscDesk() = default;

void DiscDesk::Open() {
  const std::string before = chosen_ >= 0 ? drives_[static_cast<std::size_t>(chosen_)].Address : settings_.CDBurner;
  drives_ = machine_.List();
  if (const std::string image = ImageOfAddress(before); !image.empty())
    drives_.push_back({before, Tr("{} (image file)", LastName(image))});
  chosen_ = drives_.empty() ? -1 : 0;
  for (std::size_t i = 0; i < drives_.size(); ++i)
    if (drives_[i].Address == before) chosen_ = static_cast<int>(i);
  Look();
}

void DiscDesk::Choose(int index) {
  if (index < 0 || index >= static_cast<int>(drives_.size()) || index == chosen_) return;
  chosen_ = index;
  Keep();
  Look();
}

void DiscDesk::ChooseImage(const std::string& path) {
  const std::string address = AddressOfImage(path);
  std::erase_if(drives_, [](const DriveName& drive) { return !ImageOfAddress(drive.Address).empty(); });
  drives_.push_back({address, Tr("{} (image file)", LastName(path))});
  chosen_ = static_cast<int>(drives_.size()) - 1;
  Keep();
  Look();
}

void DiscDesk::Keep() { settings_.Set(settings_.CDBurner, drives_[static_cast<std::size_t>(chosen_)].Address); }

std::string DiscDesk::Image() const {
  return chosen_ < 0 ? "" : ImageOfAddress(drives_[static_cast<std::size_t>(chosen_)].Address);
}

std::unique_ptr<IDiscDrive> DiscDesk::Drive() const {
  return chosen_ < 0 ? nullptr : machine_.At(drives_[static_cast<std::size_t>(chosen_)].Address);
}

void DiscDesk::Eject() {
  if (!Image().empty()) return events_.DriveTold("", Tr("An image file has no tray."));
  Ask(Wants::Eject);
}

void DiscDesk::Ask(Wants wants) {
  if (runner_.Busy()) {
    next_ = wants;
    return;
  }
  report_.reset();
  why_.clear();
  auto drive = Drive();
  if (drive) {
    asked_ = drives_[static_cast<std::size_t>(chosen_)].Address;
    runner_.Start(std::make_unique<Visit>(std::move(drive), wants), std::make_unique<VisitEnd>(*this, wants));
    patience_ = HostTimer(host_, kPatienceMs, false, [this] { GiveUp(); });
  } else if (wants != Wants::Look) {
    events_.DriveTold(Tr("Drive Not Ready"), Tr("There is no drive for discs in this computer."));
  }
  events_.DriveChanged();
}

void DiscDesk::GiveUp() {
  patience_.Stop();
  runner_.Cancel();
}

void DiscDesk::Over(Wants wants, const Visit* visit) {
  patience_.Stop();
  const bool same = chosen_ >= 0 && drives_[static_cast<std::size_t>(chosen_)].Address == asked_;
  const bool silent = !visit || visit->how.Kind() == Fault::Cancelled;
  if (same) {
    if (silent) why_ = Tr("The drive does not answer.");
    else if (!visit->how) why_ = visit->how.Why();
    else if (wants != Wants::Eject) report_ = visit->report;
  }
  if (wants == Wants::Eject) {
    events_.DriveTold("", why_.empty() ? Tr("CD Drive Ejected") : why_);
  } else if (wants == Wants::Test && same) {
    if (report_ && report_->Ready()) events_.DriveTold("", Tr("Drive is ready"));
    else
      events_.DriveTold(Tr("Drive Not Ready"), Tr("Drive is not ready...Insert a CD and test again.{}",
                                                  (Words().empty() ? "" : "\n\n" + Words())));
  }
  if (const auto next = std::exchange(next_, std::nullopt)) Ask(*next);
  else if (!same) Look();
  else events_.DriveChanged();
}

std::string DiscDesk::DriveStatus() const {
  if (chosen_ < 0 || (!report_ && why_.empty())) return Tr("Unknown");
  return report_ && report_->Ready() ? Tr("Drive is Ready") : Tr("Drive is NOT Ready");
}

std::string DiscDesk::SpaceOnCd() const {
  return report_ && report_->Ready() ? MegabytesText(report_->FreeBytes) : std::string();
}

std::string DiscDesk::Words() const {
  if (chosen_ < 0) return Tr("There is no drive for discs in this computer. An image file or a stick serve as well.");
  if (runner_.Busy()) return Tr("Asking the drive...");
  if (!why_.empty()) return why_;
  if (!report_) return {};
  const std::string kind = report_->Kind.empty() ? "" : report_->Kind + ": ";
  switch (report_->Medium) {
    case Medium::None: return Tr("There is no disc in the drive.");
    case Medium::Blank:
      return Image().empty() ? Tr("{}empty.", kind) : Tr("A file that can be burnt, mounted or sent later.");
    case Medium::Used: return Tr("{}holds something already, and can be erased.", kind);
    case Medium::Appendable:
    case Medium::Closed: return Tr("{}has been written already and cannot be erased.", kind);
    case Medium::Unsuitable: return Tr("The drive cannot write this kind of disc.");
  }
  return {};
}

DiscOrder DiscDesk::OrderFor(const std::vector<FileToSend>& files, bool page) const {
  const std::string student = StudentOf(files, LibraryTree(settings_).Root());
  const std::string today = Today();
  return {.Files = files,
          .ViewerFolder = places_.ViewerFolder,
          .Page = page,
          .Label = LabelFor(student, today),
          .Coach = settings_.UserName,
          .Company = ShownCompany(settings_),
          .Student = student,
          .Today = today,
          .WorkFolder = places_.WorkFolder,
          .Look = LookIn(settings_)};
}

std::optional<std::int64_t> DiscDesk::SpaceRequired(const std::vector<FileToSend>& files) const {
  if (files.empty()) return 0;
  DiscOrder order{.Files = files,
                  .ViewerFolder = places_.ViewerFolder,
                  .Page = false,
                  .Label = {},
                  .Coach = {},
                  .Company = {},
                  .Student = {},
                  .Today = {},
                  .WorkFolder = {},
                  .Look = {}};
  return host_.Drives().AskAtOnce(FolderOf(files.front().path), [order = std::move(order)]() mutable {
    // One that has gone takes no room; that it has gone is told when the disc is made.
    std::erase_if(order.Files, [](const FileToSend& file) { return !FileSize(file.path); });
    const auto plan = PlanOrder(order);
    return plan ? plan->Bytes() : std::int64_t{0};
  });
}

}  // namespace kinalyx

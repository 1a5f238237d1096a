#include "platform/disc/BurnRun.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <thread>
#include <utility>

#include <libburn/libburn.h>

#include "platform/files/Tr.h"

using namespace burn;  // libburn's own, around all that it declares

namespace kinalyx {
namespace {

constexpr auto kMoment = std::chrono::milliseconds(20);
constexpr int kRestMoments = 500;  // ten seconds: a drive that looks at a new disc takes its time
constexpr int kMostTries = 50;
constexpr auto kBetweenTries = std::chrono::milliseconds(100);
constexpr std::int64_t kSector = 2048;
constexpr std::size_t kReadBlock = 1 << 20;
constexpr int kFastErase = 1;
/// Where the name of the file system stands on a disc that holds one.
constexpr std::int64_t kDescriptor = 16 * kSector;
constexpr std::string_view kIsoMark = "CD001";
constexpr std::string_view kUdfMark = "BEA01";

Medium MediumOf(burn_disc_status status, burn_drive* drive) {
  switch (status) {
    case BURN_DISC_BLANK: return Medium::Blank;
    case BURN_DISC_EMPTY: return Medium::None;
    case BURN_DISC_APPENDABLE: return burn_disc_erasable(drive) ? Medium::Used : Medium::Appendable;
    case BURN_DISC_FULL: return burn_disc_erasable(drive) ? Medium::Used : Medium::Closed;
    default: return Medium::Unsuitable;
  }
}

/// A medium that is always written from the start counts as empty; whoever looks finds what it holds.
bool HoldsFiles(burn_drive* drive) {
  int profile = 0;
  std::array<char, 80> name{};
  burn_disc_get_profile(drive, &profile, name.data());
  constexpr std::array kOverwritable{0x12, 0x13, 0x1a, 0x43};  // DVD-RAM, DVD-RW, DVD+RW, BD-RE
  if (std::ranges::find(kOverwritable, profile) == kOverwritable.end()) return false;
  std::array<char, kSector> sector{};
  off_t got = 0;
  constexpr int kQuiet = 2 | 4;
  if (burn_read_data(drive, kDescriptor, sector.data(), kSector, &got, kQuiet) <= 0 || got < kSector) return false;
  const std::string_view mark(sector.data() + 1, kIsoMark.size());
  return mark == kIsoMark || mark == kUdfMark;
}

std::vector<int> SpeedsOf(burn_drive* drive) {
  std::vector<int> speeds;
  burn_speed_descriptor* list = nullptr;
  if (burn_drive_get_speedlist(drive, &list) > 0) {
    for (const burn_speed_descriptor* at = list; at; at = at->next)
      if (at->write_speed > 0) speeds.push_back(at->write_speed);
    burn_drive_free_speedlist(&list);
  }
  std::ranges::sort(speeds);
  speeds.erase(std::unique(speeds.begin(), speeds.end()), speeds.end());
  return speeds;
}

std::string InBrackets(const std::string& words) { return words.empty() ? "" : " (" + words + ")"; }

std::string WordsFor(Medium medium) {
  switch (medium) {
    case Medium::None: return Tr("There is no disc in the drive.");
    case Medium::Used: return Tr("The disc holds something already.");
    case Medium::Appendable:
    case Medium::Closed: return Tr("The disc has been written already and cannot be erased. Put in an empty one.");
    case Medium::Unsuitable: return Tr("The drive cannot write this kind of disc.");
    case Medium::Blank: break;
  }
  return "";
}

}  // namespace

Result<DriveReport> ReportOf(HeldDrive& held) {
  burn_drive* drive = held.Get();
  for (int i = 0; burn_drive_get_status(drive, nullptr) != BURN_DRIVE_IDLE; ++i) {
    if (i == kRestMoments) return Outcome::Failed(Tr("The drive does not come to rest."));
    std::this_thread::sleep_for(kMoment);
  }
  burn_disc_status status = burn_disc_get_status(drive);
  for (int i = 0; status == BURN_DISC_UNREADY && i < kRestMoments; ++i) {
    std::this_thread::sleep_for(kMoment);
    status = burn_disc_get_status(drive);
  }
  DriveReport report;
  report.Medium = MediumOf(status, drive);
  if (report.Medium == Medium::Blank && HoldsFiles(drive)) report.Medium = Medium::Used;
  if (report.Medium != Medium::None) {
    int profile = 0;
    std::array<char, 80> name{};
    if (burn_disc_get_profile(drive, &profile, name.data()) > 0) report.Kind = name.data();
    report.FreeBytes = burn_disc_available_space(drive, nullptr);
    report.Speeds = SpeedsOf(drive);
  }
  return report;
}

/// What libburn calls a disc: one session with one track.
struct BurnRun::Disc {
  Disc() : disc(burn_disc_create()), session(burn_session_create()), track(burn_track_create()) {
    burn_disc_add_session(disc, session, BURN_POS_END);
    burn_session_add_track(session, track, BURN_POS_END);
  }
  ~Disc() {
    if (options) burn_write_opts_free(options);
    burn_track_free(track);
    burn_session_free(session);
    burn_disc_free(disc);
  }
  Disc(const Disc&) = delete;
  Disc& operator=(const Disc&) = delete;

  burn_disc* disc;
  burn_session* session;
  burn_track* track;
  burn_write_opts* options = nullptr;
};

BurnRun::BurnRun(std::string address, DiscTree tree, const BurnWish& wish)
    : address_(std::move(address)), tree_(std::move(tree)), wish_(wish) {}

BurnRun::~BurnRun() {
  if (!drive_) return;
  // libburn's own threads use all of this; none of it may go before they have come to rest.
  burn_drive* drive = drive_->Get();
  while (burn_drive_get_status(drive, nullptr) != BURN_DRIVE_IDLE) {
    burn_drive_cancel(drive);
    std::this_thread::sleep_for(kMoment);
  }
}

bool BurnRun::End(Outcome how) {
  how_ = std::move(how);
  stage_ = Stage::Over;
  state_ = DriveState::Idle;
  // The source goes first: its thread waits for somebody who fetches.
  disc_.reset();
  source_.reset();
  drive_.reset();
  return false;
}

bool BurnRun::Next(Stage stage, DriveState state) {
  stage_ = stage;
  state_ = state;
  return true;
}

bool BurnRun::Step() {
  if (stage_ == Stage::Over) return false;
  if (cancelled_ && stage_ != Stage::Write && stage_ != Stage::Erase)
    return stage_ == Stage::Check
               ? End(Outcome(Fault::Cancelled, Tr("The disc has been written. It was not read back to the end.")))
               : Stopped();
  switch (stage_) {
    case Stage::Take: return Take();
    case Stage::Erase: return Erased();
    case Stage::Lay: return BeginWriting();
    case Stage::Write: return Writing();
    case Stage::Check: return CheckOn();
    case Stage::Over: break;
  }
  return false;
}

bool BurnRun::Take() {
  auto held = HeldDrive::Hold(address_, true);
  if (!held) return End(held.Failure());
  drive_ = std::move(*held);
  state_ = DriveState::ImportingSession;
  const auto report = ReportOf(*drive_);
  if (!report) return End(report.Failure());
  if (report->Medium == Medium::Blank) return Next(Stage::Lay, DriveState::Preparing);
  if (report->Medium != Medium::Used || !wish_.Erase) return End(Outcome(Fault::Refused, WordsFor(report->Medium)));
  // What can be written over from the start needs no erasing.
  if (burn_disc_get_status(drive_->Get()) == BURN_DISC_BLANK) return Next(Stage::Lay, DriveState::Preparing);
  burn_disc_erase(drive_->Get(), kFastErase);
  return Next(Stage::Erase, DriveState::Erasing);
}

/// Erasing is in the drive's own hands: it cannot be stopped.
bool BurnRun::Erased() {
  burn_drive* drive = drive_->Get();
  if (burn_drive_get_status(drive, nullptr) != BURN_DRIVE_IDLE) {
    std::this_thread::sleep_for(kMoment);
    return true;
  }
  if (!burn_drive_wrote_well(drive))
    return End(Outcome::Failed(Tr("The disc could not be erased.{}", InBrackets(DiscComplaint()))));
  burn_drive_re_assess(drive, 0);
  if (burn_disc_get_status(drive) != BURN_DISC_BLANK) return End(Outcome::Failed(Tr("The disc could not be erased.")));
  return Next(Stage::Lay, DriveState::Preparing);
}

bool BurnRun::BeginWriting() {
  burn_drive* drive = drive_->Get();
  auto source = ImageSource::Make(tree_);
  if (!source) return End(source.Failure());
  source_ = std::move(*source);
  total_ = source_->Bytes();
  disc_ = std::make_unique<Disc>();
  burn_track_define_data(disc_->track, 0, 0, 0, BURN_MODE1);
  if (burn_track_set_source(disc_->track, source_->Get()) != BURN_SOURCE_OK)
    return End(Outcome::Failed(Tr("The image could not be begun.")));
  disc_->options = burn_write_opts_new(drive);
  burn_write_opts_set_perform_opc(disc_->options, 0);
  burn_write_opts_set_multi(disc_->options, 0);
  burn_write_opts_set_underrun_proof(disc_->options, 1);
  if (wish_.Speed > 0) burn_drive_set_speed(drive, 0, wish_.Speed);
  else burn_drive_set_speed(drive, 0, 0);
  if (const std::int64_t room = burn_disc_available_space(drive, disc_->options); room < total_)
    return End(Outcome(Fault::Unwritable,
                       Tr("The disc has too little room: {} MB of {} MB.", room >> 20, (total_ >> 20) + 1)));
  std::array<char, BURN_REASONS_LEN> reasons{};
  if (burn_write_opts_auto_write_type(disc_->options, disc_->disc, reasons.data(), 0) == BURN_WRITE_NONE)
    return End(Outcome(Fault::Refused, Tr("The drive cannot write this disc.{}", InBrackets(reasons.data()))));
  DiscComplaint();
  burn_disc_write(disc_->options, disc_->disc);
  return Next(Stage::Write, DriveState::Preparing);
}

bool BurnRun::Writing() {
  burn_drive* drive = drive_->Get();
  burn_progress progress{};
  const burn_drive_status status = burn_drive_get_status(drive, &progress);
  if (status == BURN_DRIVE_IDLE) return WritingOver();
  if (cancelled_) {
    // A drive that is only about to begin has not heard it the first time.
    stopping_ = true;
    burn_drive_cancel(drive);
  }
  if (status == BURN_DRIVE_WRITING) done_ = std::clamp<std::int64_t>(progress.sector * kSector, done_, total_);
  switch (status) {
    case BURN_DRIVE_WRITING:
    case BURN_DRIVE_WRITING_PREGAP: state_ = done_ < total_ ? DriveState::Writing : DriveState::ClosingTrack; break;
    case BURN_DRIVE_WRITING_LEADOUT:
    case BURN_DRIVE_CLOSING_TRACK:
    case BURN_DRIVE_CLOSING_SESSION: state_ = DriveState::ClosingTrack; break;
    case BURN_DRIVE_FORMATTING: state_ = DriveState::Formatting; break;
    case BURN_DRIVE_ERASING: state_ = DriveState::Erasing; break;
    default: break;
  }
  if (stopping_) state_ = DriveState::AbortingByUser;
  std::this_thread::sleep_for(kMoment);
  return true;
}

bool BurnRun::WritingOver() {
  if (stopping_) return Stopped();
  const std::string complaint = DiscComplaint();
  // The thread of the disc before may be about to end still when the drive has long come to rest: once more from the
  // beginning, for a drive that was refused stays so.
  if (complaint.find("still going on") != std::string::npos && source_->Fetched() == 0 && ++tries_ < kMostTries) {
    disc_.reset();
    source_.reset();
    drive_.reset();
    std::this_thread::sleep_for(kBetweenTries);
    return Next(Stage::Take, DriveState::Preparing);
  }
  // What a source does not deliver is filled up with zeros, and the drive is content with that.
  const bool whole = source_->Fetched() >= total_;
  if (!whole || !complaint.empty() || !burn_drive_wrote_well(drive_->Get())) {
    state_ = DriveState::AbortingByError;
    return End(
        Outcome::Failed((whole ? Tr("The disc could not be written.") : Tr("A file could not be read to its end.")) +
                        InBrackets(complaint)));
  }
  written_ = true;
  done_ = total_;
  if (!wish_.Check) return End({});
  burn_drive_re_assess(drive_->Get(), 0);
  done_ = 0;
  block_.resize(kReadBlock);
  return Next(Stage::Check, DriveState::Checking);
}

bool BurnRun::CheckOn() {
  const auto wanted = std::min<std::int64_t>(kReadBlock, total_ - done_);
  off_t got = 0;
  constexpr int kQuiet = 2;
  if (burn_read_data(drive_->Get(), done_, block_.data(), wanted, &got, kQuiet) <= 0 || got < wanted)
    return End(Outcome::Failed(Tr("The disc has been written, but it cannot be read back. Do not give it away.{}",
                                  InBrackets(DiscComplaint()))));
  readBack_.Add(block_.data(), static_cast<std::size_t>(wanted));
  done_ += wanted;
  if (done_ < total_) return true;
  if (readBack_.Sum() != source_->Sum())
    return End(Outcome::Failed(Tr("The disc has been written, but it differs from the files. Do not give it away.")));
  return End({});
}

}  // namespace kinalyx

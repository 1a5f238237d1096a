#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "distribution/disc/BurnBoard.h"
#include "distribution/disc/DiscOrder.h"
#include "library/JobRunner.h"
#include "platform/disc/DiscDrives.h"

namespace kinalyx {

/// What comes of what a desk was asked; told on the user-interface thread.
class IDiscDeskEvents {
 public:
  virtual ~IDiscDeskEvents() = default;
  /// The drives, the chosen one or what it says of itself.
  virtual void DriveChanged() = 0;
  /// An answer to Test or Eject.
  virtual void DriveTold(const std::string& title, const std::string& words) = 0;
};

/// The drives for discs as the page of the disc sees them: which there are, which is chosen, how it is. Drives are
/// asked on a worker; one that does not answer is given up.
class DiscDesk final {
 public:
  struct Places {
    std::string ViewerFolder;  ///< `Bin`
    std::string WorkFolder;    ///< for what is made on the way
  };
  /// All but the places outlives the desk.
  DiscDesk(IHost& host, Settings& settings, IDiscDrives& drives, IDiscDeskEvents& events, Places places,
           JobRunner::On on = JobRunner::On::Worker);
  ~DiscDesk();

  // --- drives
  /// Looks which drives there are, and asks the one that was chosen last, or else the first.
  void Open();
  const std::vector<DriveName>& Drives() const { return drives_; }
  /// Index into Drives; -1 where there are none.
  int Chosen() const { return chosen_; }
  void Choose(int index);
  /// A file in place of a drive, from now on the last of the list.
  void ChooseImage(const std::string& path);
  /// The chosen drive is a file; its path.
  std::string Image() const;
  /// Asks the chosen drive, and tells what it says.
  void Test() { Ask(Wants::Test); }
  void Eject();
  /// Asks it and tells nobody but the page.
  void Look() { Ask(Wants::Look); }
  bool Asking() const { return runner_.Busy(); }

  /// "Drive is Ready", "Drive is NOT Ready", "Unknown".
  std::string DriveStatus() const;
  /// "4,482MB"; empty where it is not known.
  std::string SpaceOnCd() const;
  /// Why the drive is not ready, or what lies in it; may be empty.
  std::string Words() const;
  /// What the chosen drive has said last.
  const std::optional<DriveReport>& Report() const { return report_; }
  std::unique_ptr<IDiscDrive> Drive() const;

  // --- what goes on a disc
  DiscOrder OrderFor(const std::vector<FileToSend>& files, bool page) const;
  /// Bytes of all that exists already: the list, its sidecars and the viewer. Nothing when a drive does not answer.
  std::optional<std::int64_t> SpaceRequired(const std::vector<FileToSend>& files) const;

 private:
  enum class Wants { Look, Test, Eject };
  class Visit;
  class VisitEnd;

  void Ask(Wants wants);
  void Over(Wants wants, const Visit* visit);
  void GiveUp();
  void Keep();

  IHost& host_;
  Settings& settings_;
  IDiscDrives& machine_;
  IDiscDeskEvents& events_;
  Places places_;
  JobRunner runner_;
  HostTimer patience_;
  std::vector<DriveName> drives_;
  int chosen_ = -1;
  std::string asked_;          ///< address of the drive that is being asked
  std::optional<Wants> next_;  ///< what is to be asked when the one under way is over
  std::optional<DriveReport> report_;
  std::string why_;  ///< why there is none
};

}  // namespace kinalyx

#include "core/LibraryPath.h"

#include <filesystem>
#include <utility>

#include <sys/stat.h>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {

namespace {

/// True for the folder by which a drive is entered: where its neighbours above lie on another drive.
bool IsDriveRoot(const std::string& folder) {
  struct stat here {};
  struct stat above {};
  if (::stat(folder.c_str(), &here) != 0 || ::stat((folder + "/..").c_str(), &above) != 0) return false;
  return here.st_dev != above.st_dev || here.st_ino == above.st_ino;
}

void Take(Settings& settings, bool network, std::string path) {
  settings.UseNetwork = network;
  settings.LibraryPath = std::move(path);
  settings.Write(settings.UseNetwork);
  settings.Write(settings.LibraryPath);
}

}  // namespace

std::string LocalLibraryPath(const Settings& settings) { return JoinPath(settings.DataPath, "Video Library"); }

bool SwitchNetworkOn(IHost& host, Settings& settings) {
  if (!host.Question(Tr("Network Path Change"),
                     Tr("Warning! If the network path is invalid at any time, the program will not function. "
                        "Are you sure you want to continue?")))
    return false;
  const bool answers = host.Drives().Answers(settings.LibraryPath);
  const auto folder = host.PickFolder(Tr("Select the path to store your videos."),
                                      answers ? settings.LibraryPath : LocalLibraryPath(settings));
  if (!folder || folder->empty()) {
    settings.Set(settings.UseNetwork, false);
    return false;
  }
  const std::string refusal = TakeLibraryFolder(settings, *folder);
  if (!refusal.empty()) host.Message(MessageKind::Warning, Tr("Network Path Change"), refusal);
  return refusal.empty();
}

std::string TakeLibraryFolder(Settings& settings, std::string folder) {
  folder = folder.substr(0, folder.find('\0'));
  const std::string unusable = Tr("The folder {} cannot be used for videos.", folder);
  while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
  if (folder.empty()) return unusable;
  if (IsDriveRoot(folder)) folder = JoinPath(folder, "Video Library");
  if (!Settings::Holds(folder)) return Settings::TooLongText(folder);
  if (!dirExists(folder)) {
    if (!MakeFolder(folder)) return unusable;
    MakeFolder(JoinPath(folder, "Amateurs"));
    MakeFolder(JoinPath(folder, "Models"));
  }
  Take(settings, true, std::move(folder));
  return {};
}

void SwitchNetworkOff(Settings& settings) { Take(settings, false, LocalLibraryPath(settings)); }

}  // namespace kinalyx

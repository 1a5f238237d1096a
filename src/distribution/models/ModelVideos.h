#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/MailSettings.h"
#include "core/Settings.h"
#include "distribution/mail/ServerDesk.h"
#include "library/JobRunner.h"
#include "platform/files/Tr.h"
#include "platform/net/IFileServer.h"

namespace kinalyx {

/// What is told of model videos, on the user-interface thread.
class IModelVideosEvents {
 public:
  virtual ~IModelVideosEvents() = default;
  /// Anything that is shown may be another.
  virtual void ModelsChanged() = 0;
  /// Something has failed, and is to be said in a box.
  virtual void ModelsFailed(const std::string& title, const std::string& text) = 0;
};

/// A video of the server.
struct ModelVideo {
  std::string name;         ///< a name that the library takes, with its ending
  std::int64_t bytes = -1;  ///< -1 unknown
  bool here = false;        ///< the library has one of that name in that place
};

/// The folder `modelvideos` of a server: folders, folders in them, and videos, which come into the library under
/// folders of the same names. One errand at a time; nothing here waits for the server.
class ModelVideos : private IServerEvents {
 public:
  using MakeServer = std::function<std::unique_ptr<IFileServer>(ServerLogin)>;
  struct Parts {
    IHost& host;
    const Settings& settings;
    const MailSettings& mail;
    MakeServer makeServer;
    JobRunner::On on = JobRunner::On::Worker;
  };
  /// All outlives this.
  ModelVideos(Parts parts, IModelVideosEvents& events);

  /// A server is set; while there is none nothing is contacted.
  bool Configured() const { return !parts_.mail.ModelServer.empty(); }
  /// Asks for the folders.
  void Open();
  /// @param index  in Folders(), Subfolders(); out of range is nothing, as is all while something is under way
  void ChooseFolder(int index);
  void ChooseSubfolder(int index);
  /// @param indexes  in Videos()
  void Download(const std::vector<int>& indexes);
  /// What has come whole stays.
  void Cancel() { desk_.Cancel(); }
  bool Busy() const { return desk_.Busy(); }
  bool Downloading() const { return Busy() && errand_ == Errand::Download; }

  const std::vector<std::string>& Folders() const { return folders_; }
  const std::vector<std::string>& Subfolders() const { return subfolders_; }
  const std::vector<ModelVideo>& Videos() const { return videos_; }
  const std::string& Status() const { return status_; }
  /// "Downloading", "Bytes per Second: 1,234,567".
  const std::string& Detail() const { return detail_; }
  /// 0 to 1 of the download; negative while nothing flows.
  double Part() const { return part_; }

 private:
  enum class Errand { Folders, Subfolders, Videos, Download };
  struct Reply;
  struct Order;

  bool Begin(Errand errand, std::string status);
  void AskFolder(const std::string& path);
  static Outcome Fetch(IFileServer& server, const Order& order, Reply& reply, ITransferWatch& watch);
  static Outcome FetchOne(IFileServer& server, const Order& order, std::size_t index, Reply& reply,
                          ITransferWatch& watch);
  void TakeFolders(std::vector<std::string>& folders);
  void TakeVideos();
  void MarkFetched(std::size_t count);
  void Fail(const Outcome& outcome);
  void ShowDownload();
  std::string WordsOfEnd() const;
  std::string TargetFolder() const;

  void ServerProgress(double part) override;
  void ServerOver(const Outcome& outcome) override;

  Parts parts_;
  IModelVideosEvents& events_;
  Errand errand_ = Errand::Folders;
  std::shared_ptr<IFileServer> server_;  ///< null before the first errand, and after one that failed
  std::shared_ptr<Reply> reply_;         ///< of the errand under way, or of the last one
  std::vector<std::string> folders_, subfolders_;
  std::vector<ModelVideo> videos_;
  std::vector<std::string> besides_;  ///< what else lies beside the videos
  std::string folder_, subfolder_;    ///< that are chosen
  std::string status_ = Tr("Idle"), detail_;
  double part_ = -1;
  std::vector<std::size_t> ordered_;  ///< of the videos, those of the download
  ServerDesk desk_;
};

/// "1 file selected for download."
std::string SelectedText(std::size_t files);

}  // namespace kinalyx

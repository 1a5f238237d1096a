#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "distribution/web/SendBoard.h"
#include "distribution/web/SendPlan.h"
#include "library/JobRunner.h"
#include "platform/files/Folders.h"

namespace kinalyx {

class WebConversion;

/// Where a send finds its servers.
class ISendServers {
 public:
  virtual ~ISendServers() = default;
  virtual std::unique_ptr<IFileServer> Files(const ServerLogin& login);
  virtual std::unique_ptr<IMailSender> Mail();
};

/// What a send that was broken off has done already, for the next one of the same order: nothing is converted or
/// mailed twice. Used by one job at a time.
struct SendMemory {
  struct Made {
    FileStamp of;  ///< the source
    double frameSeconds = 0;
  };
  std::map<std::string, Made> converted;  ///< by the name of the files, without ending
  std::set<std::string> mailed;           ///< one for each mail and reader
};

/// Carries out a send on a worker: makes the files, uploads them and mails the link, or mails the files themselves. On
/// the server videos come first, then the playlist, the page last, so that a page that is there already works until the
/// new one has come whole. Old entries stay. What lies there whole is not sent again.
///
/// What is made on the way stays in the work folder when the send fails, so that it can be taken up again; when it is
/// over or cancelled, it goes.
class SendJob final : public IJob {
 public:
  struct Parts {
    SendOrder order;
    std::shared_ptr<SendBoard> board;
    std::shared_ptr<SendMemory> memory;
    std::shared_ptr<ISendServers> servers;
  };
  explicit SendJob(Parts parts);
  ~SendJob() override;

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;

  /// Once it is over: in words for the user, Cancelled when it was cancelled.
  const Outcome& How() const { return how_; }
  /// A mail went out, and the server did not say goodbye.
  bool ClosedBadly() const { return closedBadly_; }

 private:
  enum class Phase { Begin, Check, Convert, List, Upload, Page, Mail, Clean, Over };
  struct Upload {
    std::string source;
    std::string path;  ///< on the server
    std::int64_t bytes = 0;
  };

  Outcome Begin();
  Outcome CheckWeb();
  Outcome ReadOld();
  Outcome ConvertSome();
  Outcome BeginConversion();
  Outcome ListVideos();
  Outcome UploadNext();
  Outcome SendPage();
  void RemoveLeftovers();
  Outcome MailNext();
  Outcome Send(MailMessage message, const std::string& key, std::size_t mails);
  void MakeLogo();
  void RemoveFiles();
  bool Finish(Outcome how);
  void Say(int step, const std::string& words, double part = 0, const std::string& detail = {});
  bool IsWeb() const { return parts_.order.mode == SendOrder::Mode::Web; }
  std::string Work(const std::string& name) const { return JoinPath(parts_.order.workFolder, name); }

  Parts parts_;
  Phase phase_ = Phase::Begin;
  Outcome how_;
  SendPlan plan_;
  OldContent old_;
  std::unique_ptr<IFileServer> server_;
  std::unique_ptr<WebConversion> conversion_;
  std::size_t next_ = 0;  ///< of the present phase
  FileStamp source_;
  std::vector<double> frameSeconds_;
  std::vector<Upload> uploads_;
  std::vector<ServerEntry> there_;  ///< in the folder of the videos before the upload
  std::string logo_;
  bool connecting_ = false;
  bool closedBadly_ = false;
};

/// Removes all that a send has left in its work folder.
void RemoveWorkFolder(const std::string& workFolder);

}  // namespace kinalyx

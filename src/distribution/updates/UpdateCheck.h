#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/MailSettings.h"
#include "core/Settings.h"
#include "distribution/mail/ServerDesk.h"
#include "library/JobRunner.h"
#include "platform/net/IFileServer.h"

namespace kinalyx {

/// Looks for a new version on the server of the settings, in the background. While no server is set nothing is
/// contacted.
class UpdateCheck : private IServerEvents {
 public:
  using MakeServer = std::function<std::unique_ptr<IFileServer>(ServerLogin)>;
  struct Parts {
    IHost& host;
    const Settings& settings;
    const MailSettings& mail;
    MakeServer makeServer;
    std::string ownVersion;         ///< "2.0.1"
    std::function<void()> close;    ///< the program, for the update
    std::function<void()> changed;  ///< Busy() may be another
    JobRunner::On on = JobRunner::On::Worker;
  };
  /// All outlives this.
  explicit UpdateCheck(Parts parts);

  /// The check at the start, where the user wants it.
  void CheckAtStart();
  /// @param Silent  tells nothing but a new version
  void CheckForUpdates(bool Silent);
  bool Busy() const { return desk_.Busy(); }
  void Cancel() { desk_.Cancel(); }

 private:
  struct Reply;

  void Tell(const std::string& text);
  void Offer(const std::string& version);

  void ServerProgress(double) override {}
  void ServerOver(const Outcome& outcome) override;

  Parts parts_;
  bool silent_ = true;
  std::shared_ptr<Reply> reply_;
  ServerDesk desk_;
};

}  // namespace kinalyx

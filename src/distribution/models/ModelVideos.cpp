#include "distribution/models/ModelVideos.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
#include <utility>

#include "library/LibraryTree.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr const char* kRemoteRoot = "modelvideos";
constexpr const char* kCannotFind = TrLater("Cannot find directories.");
constexpr const char* kCannotFindFiles = TrLater("Cannot find files.");

/// "1,234,567"
std::string Grouped(std::int64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3;) text.insert(at -= 3, ",");
  return text;
}

}  // namespace

/// As the library sorts its own.
std::vector<ServerEntry> InOrderOfNames(std::vector<ServerEntry> entries) {
  std::map<std::string, ServerEntry> byName;
  std::vector<std::string> names;
  for (ServerEntry& entry : entries) {
    const std::string name = entry.name;
    if (byName.try_emplace(name, std::move(entry)).second) names.push_back(name);
  }
  SortNames(names);
  std::vector<ServerEntry> sorted;
  sorted.reserve(names.size());
  for (const std::string& name : names) sorted.push_back(std::move(byName.at(name)));
  return sorted;
}

/// What a worker and this side tell each other.
struct ModelVideos::Reply {
  std::vector<ServerEntry> entries;  ///< read when the errand is over
  std::vector<bool> here;            ///< by entry

  std::mutex mutex;  ///< for what follows
  std::size_t current = 0;
  std::size_t skipped = 0;
  std::size_t came = 0;
  double bytesPerSecond = 0;
};

struct ModelVideos::Order {
  std::string path;    ///< on the server
  std::string target;  ///< folder of the library
  std::vector<ModelVideo> videos;
  std::vector<std::string> besides;
  std::int64_t total = 0;  ///< bytes of all; 0 unknown
};

namespace {

/// Hands on what it hears, and keeps the speed.
class Speedometer final : public ITransferWatch {
 public:
  Speedometer(ITransferWatch& watch, std::int64_t before, std::int64_t total, std::function<void(double)> told)
      : watch_(watch), before_(before), total_(total), told_(std::move(told)) {}
  bool Cancelled() override { return watch_.Cancelled(); }
  void Progress(std::int64_t bytes, std::int64_t total, double bytesPerSecond) override {
    told_(bytesPerSecond);
    if (total_ > 0) watch_.Progress(before_ + bytes, total_, bytesPerSecond);
    else watch_.Progress(bytes, total, bytesPerSecond);
  }

 private:
  ITransferWatch& watch_;
  std::int64_t before_, total_;
  std::function<void(double)> told_;
};

}  // namespace

std::string SelectedText(std::size_t files) {
  return files == 1 ? Tr("1 file selected for download.") : Tr("{} files selected for download.", files);
}

ModelVideos::ModelVideos(Parts parts, IModelVideosEvents& events)
    : parts_(std::move(parts)), events_(events), desk_(parts_.host, *this, parts_.on) {}

/// False where there is no server that could be asked, or it is being asked.
bool ModelVideos::Begin(Errand errand, std::string status) {
  if (!Configured() || Busy()) return false;
  if (!server_) {
    const auto address = ReadServerAddress(parts_.mail.ModelServer);
    if (!address) {
      events_.ModelsFailed(Tr("Internet connection failed."), address.Why());
      return false;
    }
    server_ = parts_.makeServer(
        {.address = *address, .login = parts_.mail.ModelLogin, .password = parts_.mail.ModelPassword});
  }
  errand_ = errand;
  reply_ = std::make_shared<Reply>();
  status_ = std::move(status);
  detail_.clear();
  part_ = -1;
  return true;
}

void ModelVideos::AskFolder(const std::string& path) {
  desk_.Start([server = server_, reply = reply_, path,
               target = errand_ == Errand::Videos ? TargetFolder() : ""](ITransferWatch& watch) -> Outcome {
    auto entries = server->List(path, watch);
    if (!entries) return entries.Failure();
    reply->entries = InOrderOfNames(std::move(*entries));
    for (const ServerEntry& entry : reply->entries)
      reply->here.push_back(!target.empty() && EntryExists(JoinPath(target, entry.name)));
    return {};
  });
  events_.ModelsChanged();
}

void ModelVideos::Open() {
  if (!Begin(Errand::Folders, Tr("Connecting to the Internet...Please wait."))) return;
  folders_.clear();
  subfolders_.clear();
  videos_.clear();
  folder_.clear();
  subfolder_.clear();
  AskFolder(kRemoteRoot);
}

void ModelVideos::ChooseFolder(int index) {
  if (index < 0 || index >= static_cast<int>(folders_.size())) return;
  if (!Begin(Errand::Subfolders, Tr("Connected. Getting Video List."))) return;
  folder_ = folders_[static_cast<std::size_t>(index)];
  subfolder_.clear();
  subfolders_.clear();
  videos_.clear();
  AskFolder(fmt::format("{}/{}", kRemoteRoot, folder_));
}

void ModelVideos::ChooseSubfolder(int index) {
  if (index < 0 || index >= static_cast<int>(subfolders_.size())) return;
  if (!Begin(Errand::Videos, Tr("Connected. Getting Video List."))) return;
  subfolder_ = subfolders_[static_cast<std::size_t>(index)];
  videos_.clear();
  AskFolder(fmt::format("{}/{}/{}", kRemoteRoot, folder_, subfolder_));
}

std::string ModelVideos::TargetFolder() const {
  return LibraryTree(parts_.settings).StudentFolder(folder_, subfolder_);
}

void ModelVideos::Download(const std::vector<int>& indexes) {
  Order order{.path = fmt::format("{}/{}/{}", kRemoteRoot, folder_, subfolder_),
              .target = TargetFolder(),
              .videos = {},
              .besides = besides_};
  bool known = true;
  std::vector<std::size_t> ordered;
  for (const int index : indexes) {
    if (index < 0 || index >= static_cast<int>(videos_.size())) continue;
    ordered.push_back(static_cast<std::size_t>(index));
    order.videos.push_back(videos_[ordered.back()]);
    known = known && order.videos.back().bytes >= 0;
    order.total += std::max<std::int64_t>(0, order.videos.back().bytes);
  }
  if (!known) order.total = 0;
  if (order.videos.empty() || !Begin(Errand::Download, {})) return;
  ordered_ = std::move(ordered);
  detail_ = Tr("Downloading");
  ShowDownload();
  desk_.Start([server = server_, reply = reply_, order = std::move(order)](ITransferWatch& watch) {
    return Fetch(*server, order, *reply, watch);
  });
  events_.ModelsChanged();
}

// ---------------------------------------------------------------- on the worker

Outcome ModelVideos::Fetch(IFileServer& server, const Order& order, Reply& reply, ITransferWatch& watch) {
  for (std::size_t index = 0; index < order.videos.size(); ++index) {
    if (watch.Cancelled()) return {Fault::Cancelled, Tr("Cancelled.")};
    {
      const std::lock_guard lock(reply.mutex);
      reply.current = index;
    }
    if (auto fetched = FetchOne(server, order, index, reply, watch); !fetched) {
      if (fetched.Kind() == Fault::Cancelled) return fetched;
      return {fetched.Kind(), fmt::format("\"{}\": {}", order.videos[index].name, fetched.Why())};
    }
  }
  return {};
}

/// What was drawn and found comes first: a video that is seen has all that belongs to it.
Outcome ModelVideos::FetchOne(IFileServer& server, const Order& order, std::size_t index, Reply& reply,
                              ITransferWatch& watch) {
  const ModelVideo& video = order.videos[index];
  const std::string target = JoinPath(order.target, video.name);
  const auto skip = [&] {
    const std::lock_guard lock(reply.mutex);
    ++reply.skipped;
    return Outcome();
  };
  if (EntryExists(target)) return skip();
  if (!MakeFolder(order.target)) return {Fault::Unwritable, Tr("Its folder in the library cannot be made.")};
  const std::int64_t free = FreeBytes(order.target);
  if (free >= 0 && video.bytes > free) return {Fault::Unwritable, Tr("The disk of the library has no room for it.")};
  std::vector<std::string> came;
  const auto giveUp = [&](const Outcome& why) {
    for (const std::string& path : came) KillFile(path);
    return why;
  };
  for (const std::string& beside : {SidecarName(video.name), StudyName(video.name)}) {
    const std::string path = JoinPath(order.target, beside);
    if (std::ranges::find(order.besides, beside) == order.besides.end() || EntryExists(path)) continue;
    if (auto got = server.Get(order.path + '/' + beside, path, watch); !got) return giveUp(got);
    came.push_back(path);
  }
  std::int64_t before = 0;
  for (std::size_t earlier = 0; earlier < index; ++earlier)
    before += std::max<std::int64_t>(0, order.videos[earlier].bytes);
  Speedometer speed(watch, before, order.total, [&reply](double bytesPerSecond) {
    const std::lock_guard lock(reply.mutex);
    reply.bytesPerSecond = bytesPerSecond;
  });
  if (auto got = server.Get(order.path + '/' + video.name, target, speed); !got) {
    // Another window has fetched it meanwhile, and what lies beside it may be that one's.
    if (got.Kind() == Fault::Refused && EntryExists(target)) return skip();
    return giveUp(got);
  }
  const std::lock_guard lock(reply.mutex);
  ++reply.came;
  return {};
}

// ---------------------------------------------------------------- what comes back

void ModelVideos::ShowDownload() {
  const std::lock_guard lock(reply_->mutex);
  status_ = Tr("Getting Video {} of {}", reply_->current + 1, ordered_.size());
  if (reply_->bytesPerSecond > 0) detail_ = Tr("Bytes per Second: {}", Grouped(std::llround(reply_->bytesPerSecond)));
}

void ModelVideos::ServerProgress(double part) {
  if (errand_ != Errand::Download) return;
  part_ = part;
  ShowDownload();
  events_.ModelsChanged();
}

/// Folders whose names the library takes: a name of the server becomes a place on this disk.
void ModelVideos::TakeFolders(std::vector<std::string>& folders) {
  for (const ServerEntry& entry : reply_->entries)
    if (entry.folder && IsValidName(entry.name) && !IsBlank(entry.name)) folders.push_back(entry.name);
}

void ModelVideos::TakeVideos() {
  besides_.clear();
  for (std::size_t i = 0; i < reply_->entries.size(); ++i) {
    const ServerEntry& entry = reply_->entries[i];
    if (entry.folder) continue;
    if (IsVideoName(entry.name) && IsValidName(VideoName(entry.name)))
      videos_.push_back({entry.name, entry.bytes, reply_->here[i]});
    else besides_.push_back(entry.name);
  }
}

/// The first of the download are in the library now.
void ModelVideos::MarkFetched(std::size_t count) {
  for (std::size_t i = 0; i < count && i < ordered_.size(); ++i) videos_[ordered_[i]].here = true;
}

void ModelVideos::Fail(const Outcome& outcome) {
  if (outcome.Kind() == Fault::Cancelled) {
    status_ = errand_ == Errand::Download ? Tr("Download Cancelled") : Tr("Cancelled");
    return;
  }
  status_ = Tr("Idle");
  const bool missing = outcome.Kind() == Fault::NotFound;
  if (errand_ == Errand::Download) events_.ModelsFailed(Tr("Download"), outcome.Why());
  else if (missing && errand_ == Errand::Videos)
    events_.ModelsFailed(Tr(kCannotFindFiles), Tr("Cannot find files. Please try again."));
  else if (missing) events_.ModelsFailed(Tr(kCannotFind), Tr("Cannot find directories. Please try again."));
  else
    events_.ModelsFailed(Tr("Internet connection failed."), Tr("Cannot connect to the Internet\n\n{}", outcome.Why()));
}

std::string ModelVideos::WordsOfEnd() const {
  const std::lock_guard lock(reply_->mutex);
  if (reply_->skipped == 0) return Tr("Download Complete");
  return reply_->skipped == 1 ? Tr("Download Complete. 1 was in your library already.")
                              : Tr("Download Complete. {} were in your library already.", reply_->skipped);
}

void ModelVideos::ServerOver(const Outcome& outcome) {
  detail_.clear();
  part_ = -1;
  if (errand_ == Errand::Download) MarkFetched(outcome ? ordered_.size() : reply_->current);
  if (!outcome) {
    // One that hangs may still hold it.
    server_.reset();
    Fail(outcome);
    return events_.ModelsChanged();
  }
  status_ = Tr("Idle");
  switch (errand_) {
    case Errand::Folders: TakeFolders(folders_); break;
    case Errand::Subfolders: TakeFolders(subfolders_); break;
    case Errand::Videos: TakeVideos(); break;
    case Errand::Download: status_ = WordsOfEnd(); break;
  }
  const bool none = errand_ == Errand::Folders      ? folders_.empty()
                    : errand_ == Errand::Subfolders ? subfolders_.empty()
                                                    : errand_ == Errand::Videos && videos_.empty();
  if (none) Fail({Fault::NotFound, {}});
  events_.ModelsChanged();
}

}  // namespace kinalyx

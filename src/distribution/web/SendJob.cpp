#include "distribution/web/SendJob.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "library/VideoNames.h"
#include "platform/files/FileStore.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"
#include "platform/media/WebConversion.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx {
namespace {

constexpr int kPicturesAtOnce = 8;  // between two looks at whether it is to stop
constexpr std::int64_t kMostOldBytes = 1 << 20;
constexpr int kMostFolders = 50;
constexpr int kLogoSide = 480;  // pixels
constexpr int kLogoQuality = 90;
constexpr const char* kLogo = "logo.jpg";
constexpr const char* kPage = "index.html";
constexpr const char* kPlaylist = "playlist.wvx";
constexpr const char* kOldPlaylist = "oldplaylist.wvx";
constexpr std::int64_t kMostMailBytes = 15 << 20;  // both files of a video; a mail grows by a third on its way
constexpr const char* kWmvBody = TrLater("The video is attached. Windows Media Player plays it.");
constexpr const char* kBothBody = TrLater(
    "The video is attached twice: the file that ends in .mp4 plays on telephones and computers, the one that ends in "
    ".wmv in Windows Media Player.");

Outcome Cancelled() { return {Fault::Cancelled, Tr("It was cancelled.")}; }

/// Tells on the board how far the transfer of a file or a mail is, and hears there whether it is to stop.
class BoardWatch : public ITransferWatch {
 public:
  /// @param from, share  where in its step the transfer begins, and how much of the step it is
  BoardWatch(SendBoard& board, SendNews news, double from, double share)
      : board_(board), news_(std::move(news)), from_(from), share_(share) {}
  bool Cancelled() override { return board_.Cancelled(); }
  void Progress(std::int64_t bytes, std::int64_t total, double bytesPerSecond) override {
    const double part = total > 0 ? std::min(1.0, static_cast<double>(bytes) / static_cast<double>(total)) : 0;
    SendNews news = news_;
    news.part = from_ + share_ * part;
    const std::string detail = Detail(part, bytesPerSecond);
    if (!detail.empty()) news.detail = detail;
    news_.detail = news.detail;
    board_.Tell(std::move(news));
  }

 protected:
  /// @return empty: what was said last stays
  virtual std::string Detail(double /*part*/, double bytesPerSecond) const {
    return bytesPerSecond > 0 ? Tr("Upload speed {}kb per second", std::llround(bytesPerSecond / 1024)) : "";
  }

 private:
  SendBoard& board_;
  SendNews news_;
  double from_;
  double share_;
};

/// A mail with a file takes as long as an upload does.
class MailWatch final : public BoardWatch {
 public:
  MailWatch(SendBoard& board, SendNews news, double from, double share, std::string reader)
      : BoardWatch(board, std::move(news), from, share), reader_(std::move(reader)) {}

 protected:
  std::string Detail(double part, double /*bytesPerSecond*/) const override {
    const auto percent = std::lround(part * 100);
    return percent > 0 ? Tr("{}, {}% complete", reader_, percent) : reader_;
  }

 private:
  std::string reader_;
};

}  // namespace

std::unique_ptr<IFileServer> ISendServers::Files(const ServerLogin& login) { return MakeFileServer(login); }
std::unique_ptr<IMailSender> ISendServers::Mail() { return MakeMailSender(); }

SendJob::SendJob(Parts parts) : parts_(std::move(parts)) {}
SendJob::~SendJob() = default;

void SendJob::Say(int step, const std::string& words, double part, const std::string& detail) {
  parts_.board->Tell({.step = step, .words = words, .detail = detail, .part = part});
}

JobProgress SendJob::Progress() const {
  const SendNews news = parts_.board->News();
  return {std::max(0, news.step - 1), 3, news.part, news.words};
}

bool SendJob::Finish(Outcome how) {
  phase_ = Phase::Over;
  how_ = std::move(how);
  conversion_.reset();  // without its end its files go
  server_.reset();
  if (how_ || how_.Kind() == Fault::Cancelled) RemoveFiles();
  return false;
}

void SendJob::Cancel() {
  if (phase_ != Phase::Over) Finish(Cancelled());
}

void SendJob::RemoveFiles() {
  RemoveWorkFolder(parts_.order.workFolder);
  parts_.memory->converted.clear();
}

bool SendJob::Step() {
  if (phase_ == Phase::Over) return false;
  if (parts_.board->Cancelled()) return Finish(Cancelled());
  Outcome went;
  switch (phase_) {
    case Phase::Begin: went = Begin(); break;
    case Phase::Check: went = CheckWeb(); break;
    case Phase::Convert: went = ConvertSome(); break;
    case Phase::List: went = ListVideos(); break;
    case Phase::Upload: went = UploadNext(); break;
    case Phase::Page: went = SendPage(); break;
    case Phase::Mail: went = MailNext(); break;
    case Phase::Clean:
      RemoveFiles();
      Say(4, Tr("Processes complete"), 1,
          IsWeb() ? Tr("Conversion, uploading, and emailing complete") : Tr("Conversion and emailing complete"));
      return Finish({});
    case Phase::Over: break;
  }
  return went ? phase_ != Phase::Over : Finish(std::move(went));
}

Outcome SendJob::Begin() {
  auto plan = PlanSend(parts_.order);
  if (!plan) return plan.Failure();
  plan_ = std::move(*plan);
  if (!MakeFolder(parts_.order.workFolder))
    return Outcome::Failed(Tr("The folder for the converted videos could not be made: {}", parts_.order.workFolder));
  RemoveDeadParts(parts_.order.workFolder);
  phase_ = IsWeb() ? Phase::Check : Phase::Convert;
  if (IsWeb()) Say(1, Tr("Checking web for current content"));
  return {};
}

/// Finds the student's folder and what is in it. Where another student's page has it, because both names have become
/// the same, the next free one is taken.
Outcome SendJob::CheckWeb() {
  server_ = parts_.servers->Files(parts_.order.space);
  if (Outcome connected = server_->Connect(*parts_.board); !connected) return connected;
  const std::string name = plan_.student;
  for (int number = 2; number < kMostFolders; ++number) {
    if (Outcome read = ReadOld(); !read) return read;
    if (!IsOfAnother(old_, parts_.order)) break;
    plan_.student = fmt::format("{}-{}", name, number);
  }
  if (IsOfAnother(old_, parts_.order))
    return Outcome::Failed(Tr("There are too many pages with this name on the server."));
  AvoidOldNames(plan_, old_);
  phase_ = Phase::Convert;
  return {};
}

/// What cannot be read is not the same as what is not there: it would be lost with the new page. The playlist stays in
/// the work folder until the send is over.
Outcome SendJob::ReadOld() {
  std::string texts[2];
  const std::string paths[] = {plan_.Folder() + "/" + kPage, plan_.Videos() + "/" + kPlaylist};
  for (std::size_t i = 0; i < 2; ++i) {
    auto text = server_->GetText(paths[i], kMostOldBytes, *parts_.board);
    if (text) texts[i] = std::move(*text);
    else if (text.Kind() != Fault::NotFound) return text.Failure();
  }
  old_ = ReadOldContent(texts[0], texts[1]);
  return texts[1].empty() ? Outcome() : WriteWholeFile(Work(kOldPlaylist), texts[1]);
}

// ---------------------------------------------------------------- step 1

Outcome SendJob::ConvertSome() {
  if (next_ == plan_.items.size()) {
    next_ = 0;
    if (IsWeb()) MakeLogo();
    phase_ = IsWeb() ? Phase::List : Phase::Mail;
    Say(2, IsWeb() ? Tr("Uploading to web....") : Tr("Preparing email"));
    return {};
  }
  const SendItem& item = plan_.items[next_];
  if (!conversion_) return BeginConversion();
  auto state = WebConversion::State::Running;
  for (int i = 0; i < kPicturesAtOnce && state == WebConversion::State::Running; ++i) state = conversion_->Step();
  const double part = conversion_->Part();
  Say(1, Tr("Converting video {} of {}", next_ + 1, plan_.items.size()),
      (static_cast<double>(next_) + part) / static_cast<double>(plan_.items.size()),
      Tr("{}% complete", std::lround(part * 100)));
  if (state == WebConversion::State::Running) return {};
  if (state == WebConversion::State::Failed)
    return Outcome::Failed(Tr("\"{}\" could not be converted: {}.", item.file.Name(), conversion_->Error()));
  frameSeconds_.push_back(conversion_->FrameSeconds());
  parts_.memory->converted[item.name] = {source_, frameSeconds_.back()};
  conversion_.reset();
  ++next_;
  return {};
}

Outcome SendJob::BeginConversion() {
  const SendItem& item = plan_.items[next_];
  const auto stamp = StampOf(item.file.path);
  if (!stamp) return Outcome::Failed(Tr("\"{}\" could not be found.", item.file.Name()));
  source_ = *stamp;
  const auto made = parts_.memory->converted.find(item.name);
  const WebRequest request{.source = item.file.path, .wmv = Work(item.name + ".wmv"), .mp4 = Work(item.name + ".mp4")};
  if (made != parts_.memory->converted.end() && made->second.of == source_ && FileExists(request.wmv) &&
      FileExists(request.mp4)) {
    frameSeconds_.push_back(made->second.frameSeconds);
    ++next_;
    return {};
  }
  Say(1, Tr("Converting video {} of {}", next_ + 1, plan_.items.size()),
      static_cast<double>(next_) / static_cast<double>(plan_.items.size()));
  auto opened = WebConversion::Open(request);
  if (!opened) return Outcome::Failed(Tr("\"{}\" could not be converted: {}.", item.file.Name(), opened.Why()));
  conversion_ = std::move(*opened);
  return {};
}

/// As a small picture that every browser shows, whatever the file is; one that cannot be read is left out.
void SendJob::MakeLogo() {
  if (parts_.order.logo.empty()) return;
  const auto picture = LoadPicture(parts_.order.logo, kLogoSide);
  if (picture && SaveJpeg(RowsOf(*picture), Work(kLogo), kLogoQuality)) logo_ = kLogo;
}

// ---------------------------------------------------------------- step 2

/// Makes the folders and finds out what has still to be sent.
Outcome SendJob::ListVideos() {
  // The connection has been idle for as long as the conversion took.
  server_ = parts_.servers->Files(parts_.order.space);
  if (Outcome made = server_->MakeFolder(plan_.Videos(), *parts_.board); !made) return made;
  auto there = server_->List(plan_.Videos(), *parts_.board);
  if (!there && there.Kind() != Fault::NotFound) return there.Failure();
  if (there) there_ = std::move(*there);
  const auto lies = [&](const std::string& name) {
    return std::ranges::any_of(there_, [&](const ServerEntry& entry) {
      return !entry.folder && entry.name == name && entry.bytes == FileSize(Work(name)).value_or(-2);
    });
  };
  for (const SendItem& item : plan_.items) {
    const std::string wmv = item.name + ".wmv", mp4 = item.name + ".mp4";
    // Windows Media files come in whole blocks, so that two of different content may well have one length. The MP4
    // file, which is sent after it, tells whether it was this one.
    const bool mp4Lies = lies(mp4);
    if (!mp4Lies || !lies(wmv)) uploads_.push_back({.source = Work(wmv), .path = plan_.Videos() + "/" + wmv});
    if (!mp4Lies) uploads_.push_back({.source = Work(mp4), .path = plan_.Videos() + "/" + mp4});
  }
  if (!logo_.empty()) uploads_.push_back({.source = Work(logo_), .path = plan_.Folder() + "/" + logo_});
  for (Upload& upload : uploads_) upload.bytes = FileSize(upload.source).value_or(0);
  next_ = 0;
  phase_ = Phase::Upload;
  return {};
}

Outcome SendJob::UploadNext() {
  if (next_ == uploads_.size()) {
    next_ = 0;
    phase_ = Phase::Page;
    return {};
  }
  const auto sum = [](auto begin, auto end) {
    double bytes = 0;
    for (auto at = begin; at != end; ++at) bytes += static_cast<double>(at->bytes);
    return bytes;
  };
  const auto at = uploads_.begin() + static_cast<std::ptrdiff_t>(next_);
  const double all = std::max(1.0, sum(uploads_.begin(), uploads_.end()));
  const double from = sum(uploads_.begin(), at) / all;
  SendNews news{.step = 2, .words = Tr("Uploading to web...."), .detail = {}, .part = from};
  BoardWatch watch(*parts_.board, std::move(news), from, static_cast<double>(at->bytes) / all);
  ++next_;
  return server_->Put(at->source, at->path, watch);
}

/// Playlist and page, once everything is there to which they lead. Somebody else may have sent something meanwhile.
Outcome SendJob::SendPage() {
  Say(2, Tr("Uploading to web...."), 1);
  if (Outcome read = ReadOld(); !read) return read;
  const std::string page = PageText(parts_.order, plan_, old_, frameSeconds_, logo_);
  const std::string playlist = PlaylistText(parts_.order, plan_, old_);
  if (Outcome written = WriteWholeFile(Work(kPlaylist), playlist); !written) return written;
  if (Outcome written = WriteWholeFile(Work(kPage), page); !written) return written;
  if (Outcome put = server_->Put(Work(kPlaylist), plan_.Videos() + "/" + kPlaylist, *parts_.board); !put) return put;
  if (Outcome put = server_->Put(Work(kPage), plan_.Folder() + "/" + kPage, *parts_.board); !put) return put;
  RemoveLeftovers();
  next_ = 0;
  phase_ = Phase::Mail;
  return {};
}

/// Everything is whole now; what earlier sends of the same files left where they broke off takes up room. A server that
/// does not let it go keeps it.
void SendJob::RemoveLeftovers() {
  std::vector<std::string> names{kPlaylist};
  for (const SendItem& item : plan_.items) {
    names.push_back(item.name + ".wmv");
    names.push_back(item.name + ".mp4");
  }
  for (const std::string& name : names)
    if (!server_->RemoveLeftovers(plan_.Videos() + "/" + name, there_, *parts_.board)) return;
}

// ---------------------------------------------------------------- step 3

/// One mail to one reader: what one server refuses does not keep the others from theirs.
Outcome SendJob::MailNext() {
  const SendOrder& order = parts_.order;
  const std::size_t readers = order.addresses.size();
  const std::size_t mails = readers * (IsWeb() ? 1 : plan_.items.size());
  if (!std::exchange(connecting_, true)) {
    Say(3, Tr("Connecting to Email Server"));
    return {};
  }
  if (next_ == mails) {
    phase_ = Phase::Clean;
    Say(3, Tr("Deleting temporary videos..."), 1);
    return {};
  }
  const std::string& reader = order.addresses[next_ % readers];
  Say(3, Tr("Sending email..."), static_cast<double>(next_) / static_cast<double>(mails));
  MailMessage message = order.message;
  message.to = {reader};
  message.html = false;
  std::string key = reader;
  if (IsWeb()) {
    message.body = LinkMail(order, plan_);
  } else {
    const SendItem& item = plan_.items[next_ / readers];
    const std::string wmv = Work(item.name + ".wmv"), mp4 = Work(item.name + ".mp4");
    const bool both = FileSize(wmv).value_or(0) + FileSize(mp4).value_or(0) <= kMostMailBytes;
    message.subject = Tr("{} - Videos Attached", message.subject);
    message.body = item.title + "\r\n\r\n" + Tr(both ? kBothBody : kWmvBody);
    message.attachments = {{.path = wmv, .name = item.name + ".wmv"}};
    if (both) message.attachments.push_back({.path = mp4, .name = item.name + ".mp4"});
    key += "\n" + item.name;
  }
  return Send(std::move(message), key, mails);
}

Outcome SendJob::Send(MailMessage message, const std::string& key, std::size_t mails) {
  const std::string& reader = message.to.front();
  ++next_;
  if (parts_.memory->mailed.contains(key)) return {};
  SendNews news = parts_.board->News();
  news.detail = reader;
  parts_.board->Tell(news);
  const double share = 1.0 / static_cast<double>(mails);
  MailWatch watch(*parts_.board, news, news.part, message.attachments.empty() ? 0 : share, reader);
  bool closed = true;
  const Outcome sent = parts_.servers->Mail()->Send(parts_.order.mailServer, message, watch, closed);
  if (!sent) return sent.Kind() == Fault::Cancelled ? sent : Outcome(sent.Kind(), Tr(kMailFault) + "\n\n" + sent.Why());
  parts_.memory->mailed.insert(key);
  closedBadly_ = closedBadly_ || !closed;
  return {};
}

void RemoveWorkFolder(const std::string& workFolder) {
  for (const std::string& name : ListFiles(workFolder, "")) KillFile(JoinPath(workFolder, name));
  RemoveDeadParts(workFolder);
}

}  // namespace kinalyx

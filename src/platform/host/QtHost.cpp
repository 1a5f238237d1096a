#include "platform/host/QtHost.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QFileInfo>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTimerEvent>
#include <QUrl>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <map>
#include <mutex>

#include <sys/sysinfo.h>

#include "platform/files/Log.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/FileKinds.h"

namespace kinalyx {
namespace {

/// Pixels. A message is as wide as its title, but no wider than this for its sake.
constexpr int kWidestTitle = 520;
constexpr int kFatalWaitMs = 400;

QString Text(const std::string& text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

/// "All Pictures (*.bmp;*.jpg)|*.bmp; *.jpg" in the form that Qt's dialogs read.
QString DialogFilter(const std::string& filter) {
  const QStringList parts = Text(filter).split('|');
  QStringList kinds;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    kinds << parts[i].section('(', 0, 0).trimmed() + " (" + patterns.replace(';', ' ').simplified() + ")";
  }
  return kinds.isEmpty() ? Text(filter) : kinds.join(";;");
}

int ProcessorMHz() {
  // The rated speed where the kernel tells it: a resting processor runs far below.
  std::ifstream rated("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq");
  if (long kilohertz = 0; rated >> kilohertz) return static_cast<int>(kilohertz / 1000);
  int fastest = 0;
  std::ifstream info("/proc/cpuinfo");
  for (std::string line; std::getline(info, line);) {
    const auto colon = line.find(':');
    if (line.rfind("cpu MHz", 0) != 0 || colon == std::string::npos) continue;
    fastest = std::max(fastest, static_cast<int>(std::strtod(line.c_str() + colon + 1, nullptr)));
  }
  return fastest;
}

/// A message box that nobody waits in: the one who shows it lets events run.
class WaitBox final : public IWaitCard {
 public:
  WaitBox(const QString& title, const QString& text)
      : box_(QMessageBox::Information, title, text, QMessageBox::NoButton, QApplication::activeWindow()) {
    box_.setObjectName("WaitBox");
    box_.setTextFormat(Qt::PlainText);
    box_.addButton(QObject::tr("Stop Waiting"), QMessageBox::RejectRole);
    box_.setWindowModality(Qt::ApplicationModal);
    box_.show();
  }
  bool Stopped() const override { return !box_.isVisible(); }

 private:
  QMessageBox box_;
};

LogLevel LevelOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::Warning: return LogLevel::Warning;
    case MessageKind::Critical: return LogLevel::Error;
    default: return LogLevel::Note;
  }
}

// Qt takes one function for the whole process and gives it nothing of ours, so the way to the log can only be
// kept here.
std::mutex qtMutex;
Log* qtLog = nullptr;
QtMessageHandler qtConsole = nullptr;

void TakeQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtDebugMsg && type != QtInfoMsg) {
    const std::lock_guard lock(qtMutex);
    if (qtLog) qtLog->Write(type == QtWarningMsg ? LogLevel::Warning : LogLevel::Error, "qt", text.toStdString());
    // Qt ends the program next.
    if (qtLog && type == QtFatalMsg) qtLog->Flush(kFatalWaitMs);
  }
  if (qtConsole) qtConsole(type, context, text);
}

void SetQtLog(Log* log) {
  const std::lock_guard lock(qtMutex);
  qtLog = log;
  const QtMessageHandler before = qInstallMessageHandler(log ? &TakeQtMessage : qtConsole);
  if (before != &TakeQtMessage) qtConsole = before;
}

class QtHost final : public QObject, public IHost {
 public:
  explicit QtHost(Log& log) : log_(log) { SetQtLog(&log); }
  ~QtHost() override { SetQtLog(nullptr); }

  std::int64_t timeGetTime() override {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
  }

  TimerId StartTimer(int milliseconds, bool repeat, std::function<void()> action) override {
    const int qtId = startTimer(std::max(0, milliseconds), Qt::PreciseTimer);
    const TimerId id = ++lastTimer_;
    timers_[id] = {qtId, repeat, false, std::move(action)};
    running_[qtId] = id;
    return id;
  }

  void StopTimer(TimerId timer) override {
    const auto found = timers_.find(timer);
    if (found == timers_.end()) return;
    killTimer(found->second.qtId);
    running_.erase(found->second.qtId);
    timers_.erase(found);
  }

  void DoEvents() override { QCoreApplication::processEvents(); }

  void Message(MessageKind kind, const std::string& heading, const std::string& text) override {
    QMessageBox box(IconOf(kind), Title(heading), Text(text), QMessageBox::Ok, QApplication::activeWindow());
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    // Beside the words stand the icon and the edges; the title bar needs about as much for its buttons.
    const int title = std::min(kWidestTitle, box.fontMetrics().horizontalAdvance(box.windowTitle()) + 40);
    auto* words = box.findChild<QLabel*>("qt_msgbox_label");
    if (words && words->sizeHint().width() < title) words->setMinimumWidth(title);
    box.exec();
  }

  bool Question(const std::string& title, const std::string& text) override {
    QMessageBox box(QMessageBox::Question, Title(title), Text(text), QMessageBox::Yes | QMessageBox::No,
                    QApplication::activeWindow());
    box.setObjectName("QuestionBox");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
  }

  std::unique_ptr<IWaitCard> ShowWait(const std::string& title, const std::string& text) override {
    return std::make_unique<WaitBox>(Title(title), Text(text));
  }

  std::optional<std::string> PickFile(const FileDialog& dialog) override {
    const QString path = QFileDialog::getOpenFileName(QApplication::activeWindow(), Title(dialog.title),
                                                      Start(dialog.folder), DialogFilter(dialog.filter));
    if (!path.isEmpty()) lastFolder_ = QFileInfo(path).path();
    return Picked(path);
  }

  std::vector<std::string> PickFiles(const FileDialog& dialog) override {
    std::vector<std::string> paths;
    for (const QString& path : QFileDialog::getOpenFileNames(QApplication::activeWindow(), Title(dialog.title),
                                                             Start(dialog.folder), DialogFilter(dialog.filter))) {
      paths.push_back(path.toStdString());
      lastFolder_ = QFileInfo(path).path();
    }
    return paths;
  }

  std::optional<std::string> PickNewFile(const FileDialog& dialog) override {
    const QString filter = DialogFilter(dialog.filter);
    QString kind;
    QString path = Text(dialog.folder);
    for (;;) {
      // The dialog would ask about the name that was typed, before it has its ending.
      path = QFileDialog::getSaveFileName(QApplication::activeWindow(), Title(dialog.title), path, filter, &kind,
                                          QFileDialog::DontConfirmOverwrite);
      if (path.isEmpty()) return std::nullopt;
      const auto chosen = std::max<qsizetype>(0, filter.split(";;").indexOf(kind));
      path = Text(WithEnding(path.toStdString(), dialog.filter, static_cast<std::size_t>(chosen)));
      const QFileInfo file(path);
      // Who writes on a drive that does not answer says so.
      const auto there = drives_.Ask(file.path().toStdString(), [path] { return QFileInfo::exists(path); });
      if (!there.value_or(false)) return Picked(path);
      const QString question = tr("\"%1\" is there already. Do you want to replace it?");
      if (Question(dialog.title, question.arg(file.fileName()).toStdString())) return Picked(path);
    }
  }

  std::optional<std::string> PickFolder(const std::string& title, const std::string& folder) override {
    const QString path = QFileDialog::getExistingDirectory(QApplication::activeWindow(), Title(title), Start(folder));
    if (!path.isEmpty()) lastFolder_ = path;
    return Picked(path);
  }

  bool ShowFolder(const std::string& folder) override {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(Text(folder)));
  }

  bool StartDetached(const std::string& program, const std::vector<std::string>& arguments) override {
    QStringList list;
    for (const auto& argument : arguments) list << Text(argument);
    return QProcess::startDetached(Text(program), list);
  }

  SystemInfo System() override {
    SystemInfo info;
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
      const QSizeF pixels = QSizeF(screen->size()) * screen->devicePixelRatio();
      info.screenWidth = qRound(pixels.width());
      info.screenHeight = qRound(pixels.height());
      info.bitsPerPixel = screen->depth();
    }
    struct sysinfo memory {};
    if (sysinfo(&memory) == 0) info.ramKilobytes = static_cast<std::int64_t>(memory.totalram) * memory.mem_unit / 1024;
    info.processorMHz = ProcessorMHz();
    return info;
  }

  void Note(MessageKind kind, const std::string& text) override { log_.Write(LevelOf(kind), "program", text); }

  DriveWatch& Drives() override { return drives_; }

 protected:
  void timerEvent(QTimerEvent* event) override {
    const auto running = running_.find(event->timerId());
    if (running == running_.end()) return;
    const TimerId id = running->second;
    Entry& entry = timers_[id];
    // An action that shows a message is still running while the message waits: without this, a repeating
    // timer would pile up one message on the other.
    if (entry.busy) return;
    // The action may stop its own timer or start others: hold a copy, and drop a one-shot first.
    const auto action = entry.action;
    entry.busy = true;
    if (!entry.repeat) StopTimer(id);
    action();
    if (const auto still = timers_.find(id); still != timers_.end()) still->second.busy = false;
  }

 private:
  struct Entry {
    int qtId = 0;
    bool repeat = false;
    bool busy = false;  ///< its action is running
    std::function<void()> action;
  };

  static QMessageBox::Icon IconOf(MessageKind kind) {
    switch (kind) {
      case MessageKind::Warning: return QMessageBox::Warning;
      case MessageKind::Critical: return QMessageBox::Critical;
      default: return QMessageBox::Information;
    }
  }

  static QString Title(const std::string& title) {
    return title.empty() ? QCoreApplication::applicationName() : Text(title);
  }

  /// Where a dialog begins that is told no place, or one that is gone.
  QString Start(const std::string& folder) const {
    for (const QString& place :
         {Text(folder), lastFolder_, QStandardPaths::writableLocation(QStandardPaths::MoviesLocation)})
      if (!place.isEmpty() && QFileInfo::exists(place)) return place;
    return QDir::homePath();
  }

  static std::optional<std::string> Picked(const QString& path) {
    if (path.isEmpty()) return std::nullopt;
    return path.toStdString();
  }

  Log& log_;
  QString lastFolder_;  ///< from which something was picked last
  DriveWatch drives_{*this};
  // Qt gives the number of a finished timer to the next one; ours are never used twice.
  TimerId lastTimer_ = 0;
  std::map<TimerId, Entry> timers_;
  std::map<int, TimerId> running_;
};

}  // namespace

std::unique_ptr<IHost> MakeQtHost(Log& log) { return std::make_unique<QtHost>(log); }

}  // namespace kinalyx

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>
#include <algorithm>
#include <clocale>
#include <string>
#include <string_view>
#include <vector>

#include "app/Program.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Languages.h"
#include "platform/files/Log.h"
#include "platform/host/CrashReport.h"
#include "platform/host/OneProgram.h"
#include "platform/media/MediaLog.h"
#include "platform/widgets/Text.h"

namespace {

using namespace kinalyx;

/// A program that has not taken a wish by then hangs.
constexpr int kAnswerMs = 5000;

std::vector<std::string> FilesOf(const QStringList& arguments) {
  std::vector<std::string> files;
  for (const QString& argument : arguments) {
    const QUrl url(argument);
    files.push_back(Std(url.isLocalFile() ? url.toLocalFile() : QFileInfo(argument).absoluteFilePath()));
  }
  return files;
}

void Describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(QObject::tr("Motion analysis for sports instructors."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("files", QObject::tr("Videos and folders to open."), "[files...]");
}

/// Help and version are told where there is no display too, as to who packages the program.
void AnswerQuestions(int argc, char** argv) {
  const auto asks = [](std::string_view argument) {
    return argument == "-h" || argument == "--help" || argument == "--help-all" || argument == "-v" ||
           argument == "--version";
  };
  if (std::none_of(argv + 1, argv + argc, asks)) return;
  QCoreApplication application(argc, argv);
  SpeakLanguage(application, Program::WordsFolder(), {});
  QCommandLineParser parser;
  Describe(parser);
  parser.process(application);  // ends the program
}

/// True when the program that runs already has taken over what this start was to open.
bool HandedOver(const OneProgram& one, const std::vector<std::string>& files) {
  const StartWish wish{.paths = files, .token = Std(qEnvironmentVariable("XDG_ACTIVATION_TOKEN"))};
  if (one.Tell(wish, kAnswerMs) == OneProgram::Told::Taken) return true;
  return QMessageBox::question(nullptr, "Kinalyx",
                               QObject::tr("Kinalyx is running already, but does not answer. "
                                           "Do you want to start it once more?")) != QMessageBox::Yes;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication::setApplicationName("Kinalyx");
  QApplication::setApplicationVersion(KINALYX_VERSION);
  AnswerQuestions(argc, argv);
  QApplication application(argc, argv);
  // Numbers in files and measures have a point, whatever the user's language; Qt has just set that up.
  std::setlocale(LC_NUMERIC, "C");
  // By this name a desktop finds the icon of the windows.
  QApplication::setDesktopFileName("org.kinalyx.Kinalyx");
  ReportCrashes(Program::CrashFolder(), "Kinalyx " KINALYX_VERSION);

  // Until the settings say otherwise.
  SpeakLanguage(application, Program::WordsFolder(), {});

  QCommandLineParser parser;
  Describe(parser);
  parser.process(application);
  const std::vector<std::string> files = FilesOf(parser.positionalArguments());

  // One program for one library on one screen.
  OneProgram one(Settings::UserDataPath() + '\n' + Std(qEnvironmentVariable("WAYLAND_DISPLAY")) + '\n' +
                 Std(qEnvironmentVariable("DISPLAY")));
  if (!one.First() && HandedOver(one, files)) return 0;

  Log log(JoinPath(Settings::UserDataPath(), "kinalyx.log"));
  SetMediaLog(&log);
  const int result = Program(application, one, log).Run(files);
  SetMediaLog(nullptr);
  return result;
}

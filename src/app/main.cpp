#include <QApplication>
#include <QFileInfo>
#include <QUrl>
#include <clocale>
#include <string>
#include <vector>

#include "app/Program.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Log.h"
#include "platform/media/MediaLog.h"
#include "platform/widgets/Text.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  // Numbers in files and measures have a point, whatever the user's language; Qt has just set that up.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("Kinalyx");
  QApplication::setApplicationVersion(KINALYX_VERSION);
  // By this name a desktop finds the icon of the windows.
  QApplication::setDesktopFileName("org.kinalyx.Kinalyx");
  using namespace kinalyx;
  Log log(JoinPath(Settings::UserDataPath(), "kinalyx.log"));
  SetMediaLog(&log);
  std::vector<std::string> files;
  for (const QString& argument : QApplication::arguments().mid(1)) {
    const QUrl url(argument);
    files.push_back(Std(url.isLocalFile() ? url.toLocalFile() : QFileInfo(argument).absoluteFilePath()));
  }
  const int result = Program(application, log).Run(files);
  SetMediaLog(nullptr);
  return result;
}

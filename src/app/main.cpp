#include <QApplication>
#include <clocale>

#include "app/Program.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Log.h"
#include "platform/media/MediaLog.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  // Numbers in files and measures have a point, whatever the user's language; Qt has just set that up.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("Kinalyx");
  QApplication::setApplicationVersion(KINALYX_VERSION);
  using namespace kinalyx;
  Log log(JoinPath(Settings::UserDataPath(), "kinalyx.log"));
  SetMediaLog(&log);
  const int result = Program(application, log).Run();
  SetMediaLog(nullptr);
  return result;
}

// The viewer that lies on every disc and stick.
#include <QApplication>
#include <QFileInfo>
#include <clocale>

#include "platform/files/Folders.h"
#include "platform/files/Languages.h"
#include "platform/graph/SoundOutput.h"
#include "platform/media/MediaLog.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "viewer/forms/ViewerForm.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("Kinalyx Viewer");
  using namespace kinalyx;
  SetMediaLog(nullptr);
  SpeakLanguage(application, ":/words", {});
  ApplyTheme(application, CurrentTheme());
  const QStringList arguments = QApplication::arguments();
  // A folder may be named; as a rule it is the one in which the viewer lies.
  const std::string folder = arguments.size() > 1 ? Std(QFileInfo(arguments[1]).absoluteFilePath()) : ProgramFolder();
  SoundOutput sound;
  ViewerForm form(folder, sound);
  form.resize(1000, 640);
  form.show();
  return QApplication::exec();
}

#include <QApplication>
#include <clocale>

#include "app/Program.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  // Numbers in files and measures have a point, whatever the user's language; Qt has just set that up.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("Kinalyx");
  QApplication::setApplicationVersion(KINALYX_VERSION);
  kinalyx::Program program(application);
  return program.Run();
}

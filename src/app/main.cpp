#include <QApplication>

#include "app/Program.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Kinalyx");
  QApplication::setApplicationVersion(KINALYX_VERSION);
  kinalyx::Program program(application);
  return program.Run();
}

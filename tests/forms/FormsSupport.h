#pragma once

#include <QApplication>

namespace kinalyx::test {

/// The one application object of all tests of forms. A fixture inherits from this, or makes one first.
struct UsesApplication {
  UsesApplication() {
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    static QApplication application(argc, argv);
  }
};

}  // namespace kinalyx::test

#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "NamesWatch.h"

namespace kinalyx::test {

/// The one application object of all tests of forms. It must go before the program's other statics do, so
/// the test program holds it from its start to its end.
class ApplicationForTests final : public ::testing::Environment {
 public:
  void SetUp() override {
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    application_ = std::make_unique<QApplication>(argc, argv);
    names_ = std::make_unique<NamesWatch>(*application_);
  }
  void TearDown() override {
    for (const std::string& control : names_->Nameless()) ADD_FAILURE() << "no name for a screen reader: " << control;
    for (const std::string& control : names_->English()) ADD_FAILURE() << "not in the user's language: " << control;
    names_.reset();
    application_.reset();
  }

 private:
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<NamesWatch> names_;
};

// The test framework owns it.
inline ::testing::Environment* const kApplicationForTests =
    ::testing::AddGlobalTestEnvironment(new ApplicationForTests);

/// Minimises a window and brings it back, as a desktop does.
inline void PutAwayAndBack(QWidget& window) {
  struct Watch final : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      hidden |= event->type() == QEvent::Hide && event->spontaneous();
      shown |= event->type() == QEvent::Show && event->spontaneous();
      return false;
    }
    bool hidden = false;
    bool shown = false;
  } watch;
  window.installEventFilter(&watch);
  window.showMinimized();
  QCoreApplication::processEvents();
  window.showNormal();
  QCoreApplication::processEvents();
  ASSERT_TRUE(watch.hidden && watch.shown);
}

/// Says that a fixture needs the application.
struct UsesApplication {};

}  // namespace kinalyx::test

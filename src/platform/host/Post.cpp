#include "platform/host/Post.h"

#include <QCoreApplication>
#include <utility>

namespace kinalyx {
namespace {

class QtPost final : public IPost {
 public:
  void Post(std::function<void()> action) override {
    if (QCoreApplication* application = QCoreApplication::instance()) {
      QMetaObject::invokeMethod(application, std::move(action), Qt::QueuedConnection);
    }
  }
};

}  // namespace

std::shared_ptr<IPost> MakeQtPost() { return std::make_shared<QtPost>(); }

}  // namespace kinalyx

#include "platform/host/ScreenAwake.h"

#include <gio/gio.h>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace kinalyx {
namespace {

constexpr const char* kName = "org.freedesktop.ScreenSaver";
constexpr const char* kPath = "/org/freedesktop/ScreenSaver";
constexpr int kPatienceMs = 5000;

struct Unref {
  void operator()(GDBusConnection* bus) const { g_object_unref(bus); }
  void operator()(GVariant* value) const { g_variant_unref(value); }
};
using Bus = std::unique_ptr<GDBusConnection, Unref>;
using Answer = std::unique_ptr<GVariant, Unref>;

Answer Call(GDBusConnection* bus, const char* method, GVariant* arguments, const char* answer) {
  return Answer(g_dbus_connection_call_sync(bus, kName, kPath, kName, method, arguments,
                                            answer ? G_VARIANT_TYPE(answer) : nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START,
                                            kPatienceMs, nullptr, nullptr));
}

}  // namespace

struct ScreenAwake::Wish {
  std::string why;
  std::mutex mutex;
  std::condition_variable changed;
  bool over = false;

  /// Without a bus there is nobody to be asked, and none is started.
  void Hold() {
    const Bus bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (!bus) return;
    const Answer told = Call(bus.get(), "Inhibit", g_variant_new("(ss)", "Kinalyx", why.c_str()), "(u)");
    if (!told) return;
    guint32 cookie = 0;
    g_variant_get(told.get(), "(u)", &cookie);
    {
      std::unique_lock lock(mutex);
      changed.wait(lock, [this] { return over; });
    }
    Call(bus.get(), "UnInhibit", g_variant_new("(u)", cookie), nullptr);
  }
};

ScreenAwake::ScreenAwake(std::string why) : wish_(std::make_shared<Wish>()) {
  wish_->why = std::move(why);
  std::thread([wish = wish_] { wish->Hold(); }).detach();
}

ScreenAwake::~ScreenAwake() {
  const std::lock_guard lock(wish_->mutex);
  wish_->over = true;
  wish_->changed.notify_all();
}

}  // namespace kinalyx

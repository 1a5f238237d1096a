#include "platform/host/ScreenAwake.h"

#include <gio/gio.h>
#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace kinalyx::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* kFace = R"(<node><interface name="org.freedesktop.ScreenSaver">
    <method name="Inhibit"><arg type="s" direction="in"/><arg type="s" direction="in"/>
      <arg type="u" direction="out"/></method>
    <method name="UnInhibit"><arg type="u" direction="in"/></method>
  </interface></node>)";

/// A desktop that writes down what it is asked.
class Saver {
 public:
  Saver() : bus_(g_test_dbus_new(G_TEST_DBUS_NONE)) {
    g_test_dbus_up(bus_);
    std::promise<void> up;
    thread_ = std::thread([this, &up] { Serve(up); });
    up.get_future().wait();
  }
  ~Saver() {
    g_main_loop_quit(loop_);
    thread_.join();
    g_test_dbus_stop(bus_);
    g_object_unref(bus_);
  }

  /// What it was asked so far, once there is so much.
  std::vector<std::string> Asked(std::size_t count) {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, 20s, [&] { return asked_.size() >= count; });
    return asked_;
  }

 private:
  void Serve(std::promise<void>& up) {
    GMainContext* context = g_main_context_new();
    g_main_context_push_thread_default(context);
    loop_ = g_main_loop_new(context, FALSE);
    constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                              G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    GDBusConnection* connection =
        g_dbus_connection_new_for_address_sync(g_test_dbus_get_bus_address(bus_), kFlags, nullptr, nullptr, nullptr);
    GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kFace, nullptr);
    static const GDBusInterfaceVTable table{Called, nullptr, nullptr, {}};
    g_dbus_connection_register_object(connection, "/org/freedesktop/ScreenSaver", node->interfaces[0], &table, this,
                                      nullptr, nullptr);
    g_bus_own_name_on_connection(
        connection, "org.freedesktop.ScreenSaver", G_BUS_NAME_OWNER_FLAGS_NONE,
        [](GDBusConnection*, const gchar*, gpointer to) { static_cast<std::promise<void>*>(to)->set_value(); }, nullptr,
        &up, nullptr);
    g_main_loop_run(loop_);
    g_dbus_node_info_unref(node);
    g_dbus_connection_close_sync(connection, nullptr, nullptr);
    g_object_unref(connection);
    g_main_loop_unref(loop_);
    g_main_context_pop_thread_default(context);
    g_main_context_unref(context);
  }

  static void Called(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar* method,
                     GVariant* arguments, GDBusMethodInvocation* call, gpointer to) {
    auto& saver = *static_cast<Saver*>(to);
    gchar* text = g_variant_print(arguments, FALSE);
    {
      const std::lock_guard lock(saver.mutex_);
      saver.asked_.push_back(std::string(method) + text);
    }
    g_free(text);
    saver.changed_.notify_all();
    const bool inhibits = method == std::string("Inhibit");
    g_dbus_method_invocation_return_value(call, inhibits ? g_variant_new("(u)", 4711U) : nullptr);
  }

  GTestDBus* bus_;
  GMainLoop* loop_ = nullptr;
  std::thread thread_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<std::string> asked_;
};

TEST(ScreenAwakeTest, AsksTheDesktopForAsLongAsItLives) {
  Saver saver;
  {
    const ScreenAwake awake("The mirror is shown: Łódź");
    EXPECT_EQ(saver.Asked(1), std::vector<std::string>{"Inhibit('Kinalyx', 'The mirror is shown: Łódź')"});
  }
  EXPECT_EQ(saver.Asked(2).back(), "UnInhibit(4711,)");
}

}  // namespace
}  // namespace kinalyx::test

#include "platform/graph/ScreenCast.h"

#include <fcntl.h>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>

#include "platform/graph/DesktopScreens.h"
#include "platform/graph/ScreenSource.h"

namespace kinalyx::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* kFace = R"(<node>
  <interface name="org.freedesktop.portal.ScreenCast">
    <method name="CreateSession"><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
    <method name="SelectSources"><arg type="o" direction="in"/><arg type="a{sv}" direction="in"/>
      <arg type="o" direction="out"/></method>
    <method name="Start"><arg type="o" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
      <arg type="o" direction="out"/></method>
    <method name="OpenPipeWireRemote"><arg type="o" direction="in"/><arg type="a{sv}" direction="in"/>
      <arg type="h" direction="out"/></method>
  </interface>
</node>)";

/// A desktop whose user says yes, no, or nothing.
class Desktop {
 public:
  enum class User { Yes, No, Silent };

  Desktop() : bus_(g_test_dbus_new(G_TEST_DBUS_NONE)) {
    g_test_dbus_up(bus_);
    std::promise<void> up;
    thread_ = std::thread([this, &up] { Serve(up); });
    up.get_future().wait();
  }
  ~Desktop() {
    g_main_loop_quit(loop_);
    thread_.join();
    g_test_dbus_down(bus_);
    g_object_unref(bus_);
  }

  std::atomic<User> user = User::Yes;
  std::atomic<int> asked = 0;
  std::string token;          ///< that came with the last question
  std::uint32_t pointer = 0;  ///< how it was wanted

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
    g_dbus_connection_register_object(connection, "/org/freedesktop/portal/desktop", node->interfaces[0], &table, this,
                                      nullptr, nullptr);
    g_bus_own_name_on_connection(
        connection, "org.freedesktop.portal.Desktop", G_BUS_NAME_OWNER_FLAGS_NONE,
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

  static void Called(GDBusConnection* connection, const gchar* sender, const gchar*, const gchar*, const gchar* method,
                     GVariant* arguments, GDBusMethodInvocation* call, gpointer to) {
    auto& desktop = *static_cast<Desktop*>(to);
    const std::string_view name = method;
    if (name == "OpenPipeWireRemote") {
      GUnixFDList* files = g_unix_fd_list_new();
      const int file = ::open("/dev/null", O_RDWR | O_CLOEXEC);
      g_unix_fd_list_append(files, file, nullptr);
      ::close(file);
      g_dbus_method_invocation_return_value_with_unix_fd_list(call, g_variant_new("(h)", 0), files);
      g_object_unref(files);
      return;
    }
    GVariant* options = g_variant_get_child_value(arguments, g_variant_n_children(arguments) - 1);
    const char* handle = "";
    g_variant_lookup(options, "handle_token", "&s", &handle);
    std::string owner = sender + 1;
    for (char& c : owner)
      if (c == '.') c = '_';
    const std::string path = "/org/freedesktop/portal/desktop/request/" + owner + "/" + handle;
    GVariantBuilder results;
    g_variant_builder_init(&results, G_VARIANT_TYPE_VARDICT);
    guint32 code = 0;
    bool answers = true;
    if (name == "CreateSession") {
      g_variant_builder_add(&results, "{sv}", "session_handle", g_variant_new_string("/session/1"));
    } else if (name == "SelectSources") {
      const char* token = "";
      g_variant_lookup(options, "restore_token", "&s", &token);
      g_variant_lookup(options, "cursor_mode", "u", &desktop.pointer);
      desktop.token = token;
    } else {
      ++desktop.asked;
      code = desktop.user == User::No ? 1 : 0;
      answers = desktop.user != User::Silent;
      g_variant_builder_add(&results, "{sv}", "streams", g_variant_new_parsed("[(uint32 57, @a{sv} {})]"));
      g_variant_builder_add(&results, "{sv}", "restore_token", g_variant_new_string("again"));
    }
    g_variant_unref(options);
    g_dbus_method_invocation_return_value(call, g_variant_new("(o)", path.c_str()));
    GVariant* told = g_variant_ref_sink(g_variant_new("(ua{sv})", code, &results));
    if (answers)
      g_dbus_connection_emit_signal(connection, sender, path.c_str(), "org.freedesktop.portal.Request", "Response",
                                    told, nullptr);
    g_variant_unref(told);
  }

  GTestDBus* bus_;
  GMainLoop* loop_ = nullptr;
  std::thread thread_;
};

TEST(ScreenCasts, AreGivenRefusedAndTakenBack) {
  Desktop desktop;
  ScreenQuestion question;
  const Result<GrantedScreen> screen = question.Ask("earlier");
  ASSERT_TRUE(screen) << screen.Why();
  EXPECT_EQ(screen->node, 57u);
  EXPECT_GE(::fcntl(screen->connection, F_GETFD), 0);
  ::close(screen->connection);
  EXPECT_EQ(screen->token, "again");
  EXPECT_EQ(desktop.token, "earlier");
  EXPECT_EQ(desktop.pointer, 2u) << "the pointer is seen";

  desktop.user = Desktop::User::No;
  EXPECT_EQ(question.Ask("").Kind(), Fault::Cancelled);

  desktop.user = Desktop::User::Silent;
  const int before = desktop.asked;
  auto waiting = std::async(std::launch::async, [&] { return question.Ask("").Kind(); });
  while (desktop.asked == before) std::this_thread::sleep_for(5ms);
  question.TakeBack();
  ASSERT_EQ(waiting.wait_for(5s), std::future_status::ready) << "nobody waits for a user who has gone";
  EXPECT_EQ(waiting.get(), Fault::Cancelled);
}

TEST(Screens, AreKnownByTheirNamesAndTheKindOfTheDesktop) {
  EXPECT_TRUE(IsScreenName(NameOfX11Screen({0, 0, 1280, 800})));
  EXPECT_TRUE(IsScreenName(NameOfPipeWireScreen(7, 57)));
  EXPECT_FALSE(IsScreenName("screen"));
  const char* kept = std::getenv("WAYLAND_DISPLAY");
  const std::string before = kept ? kept : "";
  ::unsetenv("WAYLAND_DISPLAY");
  EXPECT_EQ(DesktopScreens::KindOf("xcb"), DesktopScreens::Kind::X11);
  EXPECT_EQ(DesktopScreens::KindOf("offscreen"), DesktopScreens::Kind::Other);
  ::setenv("WAYLAND_DISPLAY", "wayland-0", 1);
  EXPECT_EQ(DesktopScreens::KindOf("xcb"), DesktopScreens::Kind::Wayland) << "an X window there sees no others";
  EXPECT_EQ(DesktopScreens::KindOf("wayland"), DesktopScreens::Kind::Wayland);
  before.empty() ? ::unsetenv("WAYLAND_DISPLAY") : ::setenv("WAYLAND_DISPLAY", before.c_str(), 1);
}

}  // namespace
}  // namespace kinalyx::test

#include "platform/graph/ScreenCast.h"

#include <fmt/format.h>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>

#include <algorithm>
#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr const char* kPortal = "org.freedesktop.portal.Desktop";
constexpr const char* kPortalPath = "/org/freedesktop/portal/desktop";
constexpr const char* kScreenCast = "org.freedesktop.portal.ScreenCast";
constexpr int kAnswerMs = 5000;  // for what needs no user

constexpr guint32 kMonitors = 1;      // and no single windows
constexpr guint32 kWithPointer = 2;   // drawn into the picture
constexpr guint32 kWhileRunning = 1;  // how long a yes holds

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
  void operator()(GVariant* value) const { g_variant_unref(value); }
  void operator()(GMainContext* context) const { g_main_context_unref(context); }
  void operator()(GError* error) const { g_error_free(error); }
};
template <typename T>
using GRef = std::unique_ptr<T, Unref>;

Outcome NoPortal() {
  return Outcome::Failed(
      Tr("This desktop does not let programs record the screen: its service \"xdg-desktop-portal\" does not answer. It "
         "comes with GNOME and KDE; a session of type \"Xorg\", which the log-in screen offers, does without it."));
}

}  // namespace

struct ScreenQuestion::Line {
  struct Answer {
    bool came = false;
    guint32 code = 0;
    GRef<GVariant> results;
  };

  Result<GrantedScreen> Ask(const std::string& token);
  Outcome Request(const char* method, GVariantBuilder* options, GVariant* before, const char* parent, Answer& answer);
  Outcome Connect(GrantedScreen& screen);
  Outcome Cancelled() const { return {Fault::Cancelled, Tr("The screen was not given.")}; }

  std::atomic<bool> takenBack = false;
  GRef<GMainContext> context{g_main_context_new()};
  GRef<GDBusConnection> bus;
  int requests = 0;
};

ScreenQuestion::ScreenQuestion() : line_(std::make_unique<Line>()) {}
ScreenQuestion::~ScreenQuestion() = default;

void ScreenQuestion::TakeBack() {
  line_->takenBack = true;
  g_main_context_wakeup(line_->context.get());
}

Result<GrantedScreen> ScreenQuestion::Ask(const std::string& token) {
  g_main_context_push_thread_default(line_->context.get());
  Result<GrantedScreen> result = line_->Ask(token);
  g_main_context_pop_thread_default(line_->context.get());
  return result;
}

/// Calls a method that answers by a signal, and waits for that.
/// @param options  are used up
/// @param before   the session, where there is one; is used up
Outcome ScreenQuestion::Line::Request(const char* method, GVariantBuilder* options, GVariant* before,
                                      const char* parent, Answer& answer) {
  const std::string token = fmt::format("kinalyx{}", ++requests);
  g_variant_builder_add(options, "{sv}", "handle_token", g_variant_new_string(token.c_str()));
  std::string sender = g_dbus_connection_get_unique_name(bus.get()) + 1;
  std::ranges::replace(sender, '.', '_');
  const std::string path = fmt::format("/org/freedesktop/portal/desktop/request/{}/{}", sender, token);
  const auto hear = [](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*, GVariant* told,
                       gpointer to) {
    auto& heard = *static_cast<Answer*>(to);
    GVariant* results = nullptr;
    g_variant_get(told, "(u@a{sv})", &heard.code, &results);
    heard.results.reset(results);
    heard.came = true;
  };
  const guint hearing =
      g_dbus_connection_signal_subscribe(bus.get(), kPortal, "org.freedesktop.portal.Request", "Response", path.c_str(),
                                         nullptr, G_DBUS_SIGNAL_FLAGS_NONE, hear, &answer, nullptr);
  GVariant* arguments = nullptr;
  if (!before) arguments = g_variant_new("(a{sv})", options);
  else if (!parent) arguments = g_variant_new("(@oa{sv})", before, options);
  else arguments = g_variant_new("(@osa{sv})", before, parent, options);
  const GRef<GVariant> called(g_dbus_connection_call_sync(bus.get(), kPortal, kPortalPath, kScreenCast, method,
                                                          arguments, G_VARIANT_TYPE("(o)"), G_DBUS_CALL_FLAGS_NONE,
                                                          kAnswerMs, nullptr, nullptr));
  while (called && !answer.came && !takenBack && !g_dbus_connection_is_closed(bus.get()))
    g_main_context_iteration(context.get(), TRUE);
  g_dbus_connection_signal_unsubscribe(bus.get(), hearing);
  if (!called) return NoPortal();
  if (!answer.came || answer.code != 0) return Cancelled();
  return Outcome();
}

Result<GrantedScreen> ScreenQuestion::Line::Ask(const std::string& token) {
  bus.reset(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!bus) return NoPortal();
  GrantedScreen screen;
  const auto session = [&] { return g_variant_new_object_path(screen.session.c_str()); };
  {
    Answer answer;
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&options, "{sv}", "session_handle_token", g_variant_new_string("kinalyx"));
    if (const Outcome made = Request("CreateSession", &options, nullptr, nullptr, answer); !made) return made;
    const char* handle = nullptr;
    if (!g_variant_lookup(answer.results.get(), "session_handle", "&s", &handle) || !g_variant_is_object_path(handle))
      return NoPortal();
    screen.session = handle;
  }
  const auto giveUp = [&](Outcome why) {
    EndScreenCast(screen.session);
    return why;
  };
  {
    Answer answer;
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&options, "{sv}", "types", g_variant_new_uint32(kMonitors));
    g_variant_builder_add(&options, "{sv}", "multiple", g_variant_new_boolean(FALSE));
    g_variant_builder_add(&options, "{sv}", "cursor_mode", g_variant_new_uint32(kWithPointer));
    g_variant_builder_add(&options, "{sv}", "persist_mode", g_variant_new_uint32(kWhileRunning));
    if (!token.empty()) g_variant_builder_add(&options, "{sv}", "restore_token", g_variant_new_string(token.c_str()));
    if (const Outcome chosen = Request("SelectSources", &options, session(), nullptr, answer); !chosen)
      return giveUp(chosen);
  }
  Answer answer;
  GVariantBuilder options;
  g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
  if (const Outcome started = Request("Start", &options, session(), "", answer); !started) return giveUp(started);
  const GRef<GVariant> streams(g_variant_lookup_value(answer.results.get(), "streams", G_VARIANT_TYPE("a(ua{sv})")));
  if (!streams || g_variant_n_children(streams.get()) == 0) return giveUp(Cancelled());
  const GRef<GVariant> first(g_variant_get_child_value(streams.get(), 0));
  g_variant_get(first.get(), "(ua{sv})", &screen.node, nullptr);
  const char* again = nullptr;
  if (g_variant_lookup(answer.results.get(), "restore_token", "&s", &again)) screen.token = again;
  if (const Outcome connected = Connect(screen); !connected) return giveUp(connected);
  return screen;
}

Outcome ScreenQuestion::Line::Connect(GrantedScreen& screen) {
  GVariantBuilder options;
  g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
  GUnixFDList* given = nullptr;
  const GRef<GVariant> called(g_dbus_connection_call_with_unix_fd_list_sync(
      bus.get(), kPortal, kPortalPath, kScreenCast, "OpenPipeWireRemote",
      g_variant_new("(oa{sv})", screen.session.c_str(), &options), G_VARIANT_TYPE("(h)"), G_DBUS_CALL_FLAGS_NONE,
      kAnswerMs, nullptr, &given, nullptr, nullptr));
  const GRef<GUnixFDList> files(given);
  if (!called || !files) return NoPortal();
  gint32 index = 0;
  g_variant_get(called.get(), "(h)", &index);
  screen.connection = g_unix_fd_list_get(files.get(), index, nullptr);
  return screen.connection >= 0 ? Outcome() : NoPortal();
}

void EndScreenCast(const std::string& session) {
  const GRef<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!bus) return;
  const GRef<GVariant> closed(g_dbus_connection_call_sync(bus.get(), kPortal, session.c_str(),
                                                          "org.freedesktop.portal.Session", "Close", nullptr, nullptr,
                                                          G_DBUS_CALL_FLAGS_NONE, kAnswerMs, nullptr, nullptr));
}

}  // namespace kinalyx

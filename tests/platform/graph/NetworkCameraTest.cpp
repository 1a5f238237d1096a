#include "platform/graph/NetworkCamera.h"

#include <arpa/inet.h>
#include <gst/app/gstappsink.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include <fmt/format.h>

#include "platform/graph/GstHandles.h"
#include "platform/graph/Taken.h"
#include "platform/graph/TestCamera.h"

namespace kinalyx::test {
namespace {

using namespace std::chrono_literals;

/// A camera on this machine's own network: sends pictures to the first who asks, and ends.
class LoopbackCamera {
 public:
  /// @param pictures  none: the server is silent
  explicit LoopbackCamera(std::vector<std::string> pictures) : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(place);
    bind(socket_, reinterpret_cast<sockaddr*>(&place), size);
    listen(socket_, 1);
    getsockname(socket_, reinterpret_cast<sockaddr*>(&place), &size);
    port_ = ntohs(place.sin_port);
    thread_ = std::thread([this, pictures = std::move(pictures)] { Serve(pictures); });
  }
  ~LoopbackCamera() {
    shutdown(socket_, SHUT_RDWR);
    thread_.join();
    close(socket_);
  }
  LoopbackCamera(const LoopbackCamera&) = delete;
  LoopbackCamera& operator=(const LoopbackCamera&) = delete;

  std::string Address(const char* scheme) const { return fmt::format("{}://127.0.0.1:{}/live", scheme, port_); }

 private:
  void Serve(const std::vector<std::string>& pictures) const {
    const int guest = accept(socket_, nullptr, nullptr);
    if (guest < 0) return;
    const auto say = [&](const std::string& text) { send(guest, text.data(), text.size(), MSG_NOSIGNAL); };
    char asked[4096];
    if (!pictures.empty() && recv(guest, asked, sizeof(asked), 0) > 0) {
      say("HTTP/1.0 200 OK\r\nContent-Type: multipart/x-mixed-replace; boundary=part\r\n\r\n");
      for (const std::string& picture : pictures) {
        say(fmt::format("--part\r\nContent-Type: image/jpeg\r\nContent-Length: {}\r\n\r\n", picture.size()) + picture +
            "\r\n");
        std::this_thread::sleep_for(10ms);
      }
    } else {
      while (recv(guest, asked, sizeof(asked), 0) > 0) {
      }
    }
    close(guest);
  }

  int socket_;
  int port_ = 0;
  std::thread thread_;
};

/// What the Test Camera has compressed.
std::vector<std::string> Pictures(std::size_t count) {
  std::vector<std::string> pictures;
  if (!GstBegun()) return pictures;
  const GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr))));
  GstElement* camera = MakeTestCamera({640, 480, 30, "MJPG"});
  GstElement* sink = gst_element_factory_make("appsink", nullptr);
  gst_bin_add_many(GST_BIN(pipeline.get()), camera, sink, nullptr);
  gst_element_link(camera, sink);
  gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
  while (pictures.size() < count) {
    GstSample* sample = gst_app_sink_try_pull_sample(GST_APP_SINK(sink), 5 * GST_SECOND);
    if (!sample) break;
    GstMapInfo map;
    gst_buffer_map(gst_sample_get_buffer(sample), &map, GST_MAP_READ);
    pictures.emplace_back(reinterpret_cast<const char*>(map.data), map.size);
    gst_buffer_unmap(gst_sample_get_buffer(sample), &map);
    gst_sample_unref(sample);
  }
  gst_element_set_state(pipeline.get(), GST_STATE_NULL);
  return pictures;
}

TEST(NetworkCamera, APhonesPicturesComeAsItSentThemUntilItEnds) {
  const LoopbackCamera phone(Pictures(8));
  const Takings takings = Take(MakeNetworkSource(phone.Address("http")), 100);
  EXPECT_EQ(takings.fault, "");
  EXPECT_TRUE(takings.caps.starts_with("image/jpeg, parsed=(boolean)true, width=(int)640")) << takings.caps;
  ASSERT_EQ(takings.pictures.size(), 8u);
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(takings.pictures[i].number, static_cast<int>(i));
  }
  EXPECT_GT(takings.pictures.back().atNs, takings.pictures.front().atNs) << "stamped as they came";
}

TEST(NetworkCamera, WhoIsSilentOrRefusesIsLeftAtOnce) {
  for (const char* scheme : {"http", "rtsp"}) {
    SCOPED_TRACE(scheme);
    std::string gone;
    {
      const LoopbackCamera silent({});
      gone = silent.Address(scheme);
      const auto begun = std::chrono::steady_clock::now();
      EXPECT_TRUE(Take(MakeNetworkSource(gone), 1, 400).pictures.empty());
      EXPECT_LT(std::chrono::steady_clock::now() - begun, 3s) << "who stops does not wait for the server";
    }
    EXPECT_NE(Take(MakeNetworkSource(gone), 1).fault, "The time is over.") << "nobody listens there";
  }
}

}  // namespace
}  // namespace kinalyx::test

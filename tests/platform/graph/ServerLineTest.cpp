#include "platform/graph/ServerLine.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

TEST(ServerLine, TellsWhenAServerComesAndWhenItHasGone) {
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  const std::string path = TestPath("server");
  ASSERT_LT(path.size(), sizeof(place.sun_path));
  std::memcpy(place.sun_path, path.data(), path.size());
  ServerLine line(path);
  EXPECT_FALSE(line.Open());
  EXPECT_TRUE(line.Gone());
  const int server = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr*>(&place), sizeof(place)), 0);
  ASSERT_EQ(listen(server, 1), 0);
  EXPECT_TRUE(line.Open());
  EXPECT_FALSE(line.Gone());
  close(server);
  EXPECT_TRUE(line.Gone());
}

}  // namespace
}  // namespace kinalyx::test

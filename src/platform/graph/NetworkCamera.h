#pragma once

#include <gst/gst.h>

#include <optional>
#include <string>
#include <string_view>

namespace kinalyx {

/// A camera on the network as the user writes it down: "Phone http://192.168.1.20:8080/video".
struct NetworkAddress {
  std::string name;     ///< made of the host where the user gives none
  std::string address;  ///< `rtsp://...` or `http://...`, also with an s
};

/// None when it is no address of a kind that is known.
std::optional<NetworkAddress> ReadNetworkAddress(std::string_view text);

/// What gives the pictures of a camera at an address: image/jpeg as it came, other codecs decoded. Floating, with one
/// source pad; null where the library lacks a part. Nothing waits for the server: one that refuses, or is silent for
/// some seconds, is an error of the element, one that ends is the end of its stream.
GstElement* MakeNetworkSource(const std::string& address);

}  // namespace kinalyx

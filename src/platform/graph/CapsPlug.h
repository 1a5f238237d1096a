#pragma once

#include <gst/gst.h>

#include <memory>
#include <string>

namespace kinalyx {

/// Says what is to be done with what comes.
class ICapsChooser {
 public:
  virtual ~ICapsChooser() = default;
  /// A bin with one input and one output, as the library for graphs describes it. Called in a streaming thread.
  virtual std::string BinFor(const GstCaps* caps) = 0;
};

/// Keeps, between an element and its successor, the bin that fits what comes: what a camera gives is not known before
/// it runs, and may change. The two elements lie in `bin` and are not linked.
void PlugByCaps(GstBin* bin, GstElement* from, GstElement* to, std::shared_ptr<ICapsChooser> chooser);

}  // namespace kinalyx

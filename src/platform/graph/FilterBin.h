#pragma once

#include <gst/gst.h>

#include <memory>
#include <string>

#include "platform/graph/CapsPlug.h"
#include "platform/graph/GstHandles.h"

namespace kinalyx {

/// What one filter becomes: a bin called by its label, in which parts stand in a row.
class FilterBin {
 public:
  /// @param pipeline  owns it
  FilterBin(GstBin* pipeline, const std::string& label);

  /// Puts a part behind the last one. Null, which is what the library gives when it lacks one, is remembered.
  /// @param element  floating; is taken
  GstElement* Append(GstElement* element);
  GstElement* Append(const char* kind) { return Append(gst_element_factory_make(kind, nullptr)); }
  /// @param description  of a bin, as the library for graphs describes it
  GstElement* AppendDescribed(const std::string& description);
  /// Puts a part behind the last one, and between the two what fits the pictures that come.
  GstElement* AppendPlugged(GstElement* element, std::shared_ptr<ICapsChooser> chooser);

  /// False when the library lacks one of the parts.
  bool Whole() const { return whole_; }
  GstBin* Bin() const { return bin_; }
  /// To be linked with another filter's; a new one for each call where ways part. Null when there is none.
  GstRef<GstPad> Output();
  GstRef<GstPad> Input();
  /// One that swallows what comes.
  GstRef<GstPad> DeadEnd();
  /// That of an end beside the row.
  /// @param end  floating; is taken
  GstRef<GstPad> SideEnd(GstElement* end);

 private:
  void Place(GstElement* element);
  GstRef<GstPad> Show(GstPad* inner);

  GstBin* bin_;
  GstElement* first_ = nullptr;
  GstElement* last_ = nullptr;
  bool whole_ = true;
};

}  // namespace kinalyx

#include "platform/graph/FilterBin.h"

#include <utility>

namespace kinalyx {

FilterBin::FilterBin(GstBin* pipeline, const std::string& label) : bin_(GST_BIN(gst_bin_new(label.c_str()))) {
  gst_bin_add(pipeline, GST_ELEMENT(bin_));
}

GstElement* FilterBin::Append(GstElement* element) {
  GstElement* before = last_;
  Place(element);
  if (element && before) gst_element_link(before, element);
  return element;
}

GstElement* FilterBin::AppendDescribed(const std::string& description) {
  GError* error = nullptr;
  GstElement* made = gst_parse_bin_from_description(description.c_str(), true, &error);
  g_clear_error(&error);
  return Append(made);
}

GstElement* FilterBin::AppendPlugged(GstElement* element, std::shared_ptr<ICapsChooser> chooser) {
  GstElement* before = last_;
  Place(element);
  if (element && before) PlugByCaps(bin_, before, element, std::move(chooser));
  return element;
}

void FilterBin::Place(GstElement* element) {
  if (!element) {
    whole_ = false;
    return;
  }
  gst_bin_add(bin_, element);
  if (!first_) first_ = element;
  last_ = element;
}

GstRef<GstPad> FilterBin::Output() {
  if (!last_) return nullptr;
  GstPad* pad = gst_element_get_static_pad(last_, "src");
  if (!pad) pad = gst_element_request_pad_simple(last_, "src_%u");
  return Show(pad);
}

GstRef<GstPad> FilterBin::Input() { return first_ ? Show(gst_element_get_static_pad(first_, "sink")) : nullptr; }

GstRef<GstPad> FilterBin::DeadEnd() {
  GstElement* end = gst_element_factory_make("fakesink", nullptr);
  if (end) g_object_set(end, "sync", FALSE, "async", FALSE, nullptr);
  return SideEnd(end);
}

GstRef<GstPad> FilterBin::SideEnd(GstElement* end) {
  if (!end) return nullptr;
  gst_bin_add(bin_, end);
  return Show(gst_element_get_static_pad(end, "sink"));
}

/// Where a pad inside the bin is reached from outside.
GstRef<GstPad> FilterBin::Show(GstPad* inner) {
  if (!inner) return nullptr;
  const GstRef<GstPad> pad(inner);
  GstPad* outer = gst_ghost_pad_new(nullptr, pad.get());
  gst_pad_set_active(outer, TRUE);
  gst_element_add_pad(GST_ELEMENT(bin_), outer);  // takes it
  return GstRef<GstPad>(GST_PAD(gst_object_ref(outer)));
}

}  // namespace kinalyx

#include "platform/graph/CapsPlug.h"

#include <gst/video/video.h>

#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/GstHandles.h"

namespace kinalyx {
namespace {

constexpr const char* kDecoder = "decoder";

/// All that a bin can be plugged in for; first what is changed least on its way to a file.
constexpr const char* kTaken =
    "video/x-raw,format={YUY2,BGR,I420,NV12,UYVY,BGRx,RGB}; video/x-raw,format=" GST_VIDEO_FORMATS_ALL
    "; image/jpeg; video/x-dv; video/x-h264; video/x-h265; video/x-vp8; video/x-vp9; video/mpeg; video/x-msmpeg";

/// A bin with the ends "sink" and "src"; null when a part of it is missing. The library's own way to give a bin its
/// ends takes the nearest free input, which behind a "decodebin" is not the first one: what is decoded is linked later.
GstElement* MakeInner(const std::string& description, GError*& error) {
  GstElement* const made = gst_parse_bin_from_description(description.c_str(), false, &error);
  if (!made) return nullptr;
  GstBin* const bin = GST_BIN(made);
  const GstRef<GstElement> decoder(gst_bin_get_by_name(bin, kDecoder));
  const GstRef<GstPad> in(decoder ? gst_element_get_static_pad(decoder.get(), "sink")
                                  : gst_bin_find_unlinked_pad(bin, GST_PAD_SINK));
  const GstRef<GstPad> out(gst_bin_find_unlinked_pad(bin, GST_PAD_SRC));
  if (in) gst_element_add_pad(made, gst_ghost_pad_new("sink", in.get()));
  if (out) gst_element_add_pad(made, gst_ghost_pad_new("src", out.get()));
  return made;
}

/// Lives with the probe on the first element's output, and works in its streaming thread.
class Plug {
 public:
  Plug(GstBin* bin, GstElement* to, std::shared_ptr<ICapsChooser> chooser)
      : bin_(bin), to_(to), chooser_(std::move(chooser)) {}

  static GstPadProbeReturn Passes(GstPad* pad, GstPadProbeInfo* info, gpointer self) {
    if (GST_EVENT_TYPE(GST_PAD_PROBE_INFO_EVENT(info)) != GST_EVENT_CAPS) return GST_PAD_PROBE_OK;
    GstCaps* caps = nullptr;
    gst_event_parse_caps(GST_PAD_PROBE_INFO_EVENT(info), &caps);
    static_cast<Plug*>(self)->Fit(pad, caps);
    return GST_PAD_PROBE_OK;
  }

 private:
  void Fit(GstPad* from, const GstCaps* caps) {
    std::string wanted = chooser_->BinFor(caps);
    if (wanted == description_) return;
    Unplug(from);
    GError* error = nullptr;
    GstElement* made = MakeInner(wanted, error);
    if (!made) {
      GST_ELEMENT_ERROR(GST_ELEMENT(bin_), CORE, MISSING_PLUGIN, ("%s", error ? error->message : ""), (nullptr));
      g_clear_error(&error);
      return;
    }
    g_clear_error(&error);
    description_ = std::move(wanted);
    inner_ = made;
    gst_bin_add(bin_, inner_);  // takes it
    gst_element_link(inner_, to_);
    gst_element_sync_state_with_parent(inner_);
    const GstRef<GstPad> in(gst_element_get_static_pad(inner_, "sink"));
    if (gst_pad_link(from, in.get()) != GST_PAD_LINK_OK)
      GST_ELEMENT_ERROR(GST_ELEMENT(bin_), CORE, NEGOTIATION,
                        ("%s", Tr("The pictures cannot be taken as they come.").c_str()), (nullptr));
  }

  void Unplug(GstPad* from) {
    if (!inner_) return;
    const GstRef<GstPad> in(gst_element_get_static_pad(inner_, "sink"));
    gst_pad_unlink(from, in.get());
    gst_element_unlink(inner_, to_);
    // The bin would let it go before it has come to rest.
    const GstRef<GstElement> gone(GST_ELEMENT(gst_object_ref(inner_)));
    gst_bin_remove(bin_, inner_);
    gst_element_set_state(gone.get(), GST_STATE_NULL);
    inner_ = nullptr;
    description_.clear();
  }

  GstBin* bin_;  // these live longer than the probe
  GstElement* to_;
  GstElement* inner_ = nullptr;
  std::string description_;
  std::shared_ptr<ICapsChooser> chooser_;
};

/// What is made of the pictures is no business of those from whom they come: a camera that negotiated anew would fail
/// in the moment in which nothing is plugged in.
GstPadProbeReturn KeepApart(GstPad*, GstPadProbeInfo* info, gpointer) {
  if (info->type & GST_PAD_PROBE_TYPE_EVENT_UPSTREAM) {
    const bool anew = GST_EVENT_TYPE(GST_PAD_PROBE_INFO_EVENT(info)) == GST_EVENT_RECONFIGURE;
    return anew ? GST_PAD_PROBE_DROP : GST_PAD_PROBE_OK;
  }
  GstQuery* query = GST_PAD_PROBE_INFO_QUERY(info);
  switch (GST_QUERY_TYPE(query)) {
    case GST_QUERY_CAPS: {
      GstCaps* filter = nullptr;
      gst_query_parse_caps(query, &filter);
      GstCapsRef taken(gst_caps_from_string(kTaken));
      if (filter) taken.reset(gst_caps_intersect_full(taken.get(), filter, GST_CAPS_INTERSECT_FIRST));
      gst_query_set_caps_result(query, taken.get());
      return GST_PAD_PROBE_HANDLED;
    }
    case GST_QUERY_ACCEPT_CAPS: gst_query_set_accept_caps_result(query, TRUE); return GST_PAD_PROBE_HANDLED;
    case GST_QUERY_ALLOCATION: return GST_PAD_PROBE_DROP;
    default: return GST_PAD_PROBE_OK;
  }
}

}  // namespace

void PlugByCaps(GstBin* bin, GstElement* from, GstElement* to, std::shared_ptr<ICapsChooser> chooser) {
  const GstRef<GstPad> input(gst_element_get_static_pad(from, "sink"));
  constexpr int kApart = GST_PAD_PROBE_TYPE_QUERY_DOWNSTREAM | GST_PAD_PROBE_TYPE_EVENT_UPSTREAM;
  gst_pad_add_probe(input.get(), static_cast<GstPadProbeType>(kApart), KeepApart, nullptr, nullptr);
  const GstRef<GstPad> pad(gst_element_get_static_pad(from, "src"));
  auto plug = std::make_unique<Plug>(bin, to, std::move(chooser));
  gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM, Plug::Passes, plug.release(),
                    [](gpointer self) { std::unique_ptr<Plug>(static_cast<Plug*>(self)); });
}

}  // namespace kinalyx

#include "platform/disc/ImageSource.h"

#include <ctime>
#include <map>
#include <string_view>
#include <vector>

#include <libburn/libburn.h>
#include <libisofs/libisofs.h>

#include "platform/disc/HeldDrive.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

/// Blocks of the buffer between reading and writing: a disk that is busy elsewhere for a second is not noticed.
constexpr std::size_t kBufferBlocks = 8192;
/// Blocks behind the files: what reads ahead at the end of a compact disc finds something there.
constexpr std::uint32_t kTailBlocks = 150;
constexpr int kDistribution = 2;  // libisofs's name for its settings for discs that are given away
constexpr int kLargeFiles = 3;    // the level of ISO 9660 that knows files of more than 4 GB

struct FreeImage {
  void operator()(IsoImage* image) const { iso_image_unref(image); }
};
struct FreeOptions {
  void operator()(IsoWriteOpts* options) const { iso_write_opts_free(options); }
};

Outcome Refused(std::string_view what, int code) {
  const std::string complaint = DiscComplaint();
  const char* words = iso_error_to_msg(code);
  return Outcome::Failed(Tr("\"{}\" cannot be put on the disc: {}.", what,
                            !complaint.empty() ? complaint
                            : words            ? std::string(words)
                                               : Tr("unknown reason")));
}

/// The tree of an image, and its folders by their paths.
class ImageTree {
 public:
  explicit ImageTree(IsoImage* image) : image_(image) { folders_[""] = iso_image_get_root(image); }

  Outcome AddFolder(const std::string& path) {
    IsoDir* folder = nullptr;
    const int code = iso_image_add_new_dir(image_, Parent(path), LastName(path).c_str(), &folder);
    if (code < 0) return Refused(path, code);
    folders_[path] = folder;
    return {};
  }
  Outcome AddFile(const DiscEntry& file) {
    if (!FileSize(file.From))
      return Outcome(Fault::NotFound, Tr("\"{}\" has gone, or cannot be read.", LastName(file.From)));
    IsoNode* node = nullptr;
    const int code =
        iso_tree_add_new_node(image_, Parent(file.To), LastName(file.To).c_str(), file.From.c_str(), &node);
    return code < 0 ? Refused(LastName(file.From), code) : Outcome();
  }

 private:
  IsoDir* Parent(const std::string& path) const {
    const std::size_t slash = path.rfind('/');
    const auto found = folders_.find(slash == std::string::npos ? "" : path.substr(0, slash));
    return found == folders_.end() ? iso_image_get_root(image_) : found->second;
  }

  IsoImage* image_;
  std::map<std::string, IsoDir*> folders_;
};

}  // namespace

ImageSource::ImageSource() : outer_(std::make_unique<burn::burn_source>()) {}

ImageSource::~ImageSource() {
  if (!inner_) return;
  // The thread that makes the image may wait for somebody to fetch it.
  if (inner_->version >= 1 && inner_->cancel) inner_->cancel(inner_);
  burn::burn_source_free(inner_);
}

Result<std::unique_ptr<ImageSource>> ImageSource::Make(const DiscTree& tree, bool sizeOnly) {
  if (!DiscLibraries()) return Outcome::Failed(Tr("The disc libraries could not be started."));
  char utf8[] = "UTF-8";
  iso_set_local_charset(utf8, 0);
  IsoImage* made = nullptr;
  if (int code = iso_image_new(tree.Label.c_str(), &made); code < 0) return Refused(tree.Label, code);
  const std::unique_ptr<IsoImage, FreeImage> image(made);
  iso_image_set_application_id(image.get(), "KINALYX");
  iso_tree_set_follow_symlinks(image.get(), 1);
  ImageTree nodes(image.get());
  for (const std::string& folder : tree.Folders)
    if (Outcome added = nodes.AddFolder(folder); !added) return added;
  for (const DiscEntry& file : tree.Files)
    if (Outcome added = nodes.AddFile(file); !added) return added;

  IsoWriteOpts* chosen = nullptr;
  if (int code = iso_write_opts_new(&chosen, kDistribution); code < 0) return Refused(tree.Label, code);
  const std::unique_ptr<IsoWriteOpts, FreeOptions> options(chosen);
  iso_write_opts_set_iso_level(options.get(), kLargeFiles);
  iso_write_opts_set_rockridge(options.get(), 1);
  iso_write_opts_set_joliet(options.get(), 1);
  iso_write_opts_set_joliet_longer_paths(options.get(), 1);
  iso_write_opts_set_joliet_long_names(options.get(), 1);
  iso_write_opts_set_joliet_utf16(options.get(), 1);
  iso_write_opts_set_output_charset(options.get(), utf8);
  // Who may run or read a file at home may on the disc, whoever they are; times are those of the files.
  constexpr int kAsTheFile = 2;
  iso_write_opts_set_replace_mode(options.get(), kAsTheFile, 0, 1, 1);
  iso_write_opts_set_default_dir_mode(options.get(), 0555);
  iso_write_opts_set_replace_timestamps(options.get(), 0);
  iso_write_opts_set_always_gmt(options.get(), 1);
  iso_write_opts_set_fifo_size(options.get(), kBufferBlocks);
  iso_write_opts_set_tail_blocks(options.get(), kTailBlocks);
  iso_write_opts_set_will_cancel(options.get(), sizeOnly ? 1 : 0);

  std::unique_ptr<ImageSource> source(new ImageSource);
  // One struct under two names: libburn declares it in a namespace, libisofs, which knows it as well, without.
  auto** inner = reinterpret_cast<struct ::burn_source**>(&source->inner_);
  if (int code = iso_image_create_burn_source(image.get(), options.get(), inner); code < 0)
    return Refused(tree.Label, code);
  source->bytes_ = source->inner_->get_size(source->inner_);
  burn::burn_source& outer = *source->outer_;
  outer.refcount = 1;
  outer.read = &ImageSource::Read;
  outer.get_size = [](burn::burn_source* self) {
    return static_cast<off_t>(static_cast<ImageSource*>(self->data)->bytes_);
  };
  outer.set_size = [](burn::burn_source*, off_t) { return 1; };
  outer.data = source.get();
  return source;
}

int ImageSource::Read(burn::burn_source* source, unsigned char* buffer, int size) {
  auto& self = *static_cast<ImageSource*>(source->data);
  const auto read = self.inner_->read ? self.inner_->read : self.inner_->read_xt;
  const int got = read(self.inner_, buffer, size);
  if (got > 0) {
    self.sum_.Add(buffer, static_cast<std::size_t>(got));
    self.fetched_ += got;
  }
  return got;
}

}  // namespace kinalyx

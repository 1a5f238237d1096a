#error "This room is logic: FFmpeg and libyuv are seen only in src/platform/media and src/platform/paint."

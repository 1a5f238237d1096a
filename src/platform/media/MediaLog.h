#pragma once

namespace kinalyx {

class Log;

/// Sends what the library that decodes and encodes has to say to `log`, from whatever thread it comes, or
/// to nobody when it is null. The log must stay until another one, or null, has been set.
void SetMediaLog(Log* log);

}  // namespace kinalyx

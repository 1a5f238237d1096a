#pragma once

#include <optional>
#include <string>

namespace kinalyx {

/// Has a crash of this process leave a report in a folder: program and version, system, what happened, and the stack
/// of the thread in which it did, as module and offset, by which `addr2line` and the debug symbols give the lines.
/// No file, student or setting is named in it, and it is sent nowhere. The process then dies as it would have.
///
/// Call once, early. The handlers stay to the end of the process.
/// @param folder   made by the first report; the one above it must be there by then
/// @param program  name and version
void ReportCrashes(const std::string& folder, const std::string& program);

/// The newest report that nobody has been told of, and of which from now on somebody has. Lets go of all but the ten
/// newest reports.
std::optional<std::string> TakeCrashReport(const std::string& folder);

}  // namespace kinalyx

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/SessionState.h"

// The last-session file "Kestrel.CFG": text, seventeen lines, values recognised by their order alone.
// docs/formats/last-session-file.md describes it.

namespace kestrel {

/// Reads the last-session file into `state`; `bytes` is nothing when there is no readable file.
///
/// - No file, or a whole number that overflows its type: channel, home, pattern size and scale take their
///   defaults, colours of 0 too; everything else stays as it was.
/// - A file that ends early keeps the values read so far, without their limits; one that ends after the
///   language still gets them.
/// - Limits: pattern size 0.02 to 1, scale 100 to 10000, aspect ratio 0.6 to 1.5 (0: 0.75); a colour of 0
///   takes its default.
void ReadSession(std::optional<std::string_view> bytes, SessionState& state);

/// The file's text, lines ended by CR LF. Limits pattern size and scale as the reader does, and resets
/// channel and home to the defaults when the channel or a coordinate is exactly 0; both in `state` itself.
/// `date` goes into a comment as it stands.
std::string WriteSession(SessionState& state, std::string_view date);

}  // namespace kestrel

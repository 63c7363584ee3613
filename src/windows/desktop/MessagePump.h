#pragma once

namespace plotsmith::windows {

/// Hands all messages that are waiting on this thread to their windows, as DoEvents does, and returns. A
/// message to quit stays for the loop of the host.
void HandleWaitingMessages();

}  // namespace plotsmith::windows

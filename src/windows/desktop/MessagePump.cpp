#include "windows/desktop/MessagePump.h"

#include "windows/com/Calls.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

void HandleWaitingMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    com::NoteChange();  // the window may have changed cells
  }
}

}  // namespace plotsmith::windows

#include "windows/desktop/HtmlHelp.h"

namespace plotsmith::windows {

HtmlHelpFunction FindHtmlHelp() {
  // A file of the same name in the folder of a workbook must not be loaded.
  static const HMODULE library = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (library == nullptr) return nullptr;
  const FARPROC function = GetProcAddress(library, "HtmlHelpW");
  return reinterpret_cast<HtmlHelpFunction>(reinterpret_cast<void*>(function));
}

}  // namespace plotsmith::windows

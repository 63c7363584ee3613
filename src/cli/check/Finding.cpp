#include "cli/check/Finding.h"

namespace plotsmith::cli {

const char* KindName(FindingKind kind) {
  switch (kind) {
    case FindingKind::kXml:
      return "xml";
    case FindingKind::kUnread:
      return "unread";
    case FindingKind::kId:
      return "id";
    case FindingKind::kChart:
      return "chart";
    case FindingKind::kFormat:
      return "format";
    case FindingKind::kTable:
      return "table";
    case FindingKind::kColumn:
      return "column";
    case FindingKind::kCells:
      return "cells";
  }
  return "";
}

}  // namespace plotsmith::cli

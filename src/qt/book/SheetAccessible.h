#pragma once

namespace plotsmith::qtbook {

class SheetView;

/// Makes sheets accessible to screen readers, as tables whose value is the active cell with its address. It
/// can be called repeatedly.
void InstallSheetAccessible();
/// Tells screen readers that the active cell has changed.
void ReportActiveCell(SheetView& view);

}  // namespace plotsmith::qtbook

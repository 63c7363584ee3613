#pragma once

namespace plotsmith::qtbook {

class SheetView;

/// Makes sheets known to screen readers, as tables whose value is the active cell with its address. May be
/// called any number of times.
void InstallSheetAccessible();
/// Tells them that the active cell has moved.
void ReportActiveCell(SheetView& view);

}  // namespace plotsmith::qtbook

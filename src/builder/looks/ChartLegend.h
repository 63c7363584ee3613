#pragma once

namespace plotsmith {

// Module PSChartBuilder: the legend of bubble and strategic bucket charts. On hosts above version 11 it is
// not the built-in one, which would have an entry for each of the many series, but is drawn from shapes.

/// Whether these charts have a drawn legend on this host, and not the built-in one.
bool LegendIsDrawn();
/// Draws the legend unless somebody took it away. After an error the chart is left without one, and nothing
/// is said; an error in that goes to the caller.
void ApplyDrawnLegend();
/// Draws the legend beside the plot area or, with `bDraw` False, removes it and gives the plot area its width
/// back. Errors go to the caller.
void BuildChartLegend(bool bDraw);

}  // namespace plotsmith

#pragma once

/// @file
/// Module PSChartBuilder: the legend of bubble and strategic bucket charts. The built-in legend would have an
/// entry for each of their many series. On hosts above version 11 the legend is drawn from shapes instead.
namespace plotsmith {

/// Returns True if these charts have a drawn legend on this host.
bool LegendIsDrawn();
/// Draws the legend unless a user has deleted it. After an error the legend is removed without a message; an
/// error of the removal goes to the caller.
void ApplyDrawnLegend();
/// Draws the legend beside the plot area. With `bDraw` False, removes it and gives the plot area its full
/// width. Errors go to the caller.
void BuildChartLegend(bool bDraw);

}  // namespace plotsmith

#pragma once

#include "pages/pictures/Canvas.h"
#include "pages/pictures/Stage.h"

/// Draws a small sample chart of each chart family.
namespace plotsmith::pictures {

/// The type of an area, bar or column chart.
enum class AbcType { kArea, kBar, kColumn };
/// The arrangement of several series in an area, bar or column chart.
enum class Arrangement { kBasic, kCluster, kStack, kStack100 };

/// The number of series, except in a basic chart.
inline constexpr std::size_t kAbcSeries = 3;

/// Draws an area, bar or column chart.
void DrawAbc(Stage& oStage, AbcType eType, Arrangement eArrangement, Look eLook);

/// Whether the slices of a pie are moved apart.
enum class Slices { kTogether, kExploded };

/// Draws a pie.
void DrawPie(Stage& oStage, Slices eSlices, Look eLook);

/// The background of a bubble chart.
enum class Background { kGridlines, kQuadrants };

/// Draws a bubble chart.
void DrawBubbles(Stage& oStage, Background eBackground, Look eLook);

/// Draws columns of blocks, with a mark at the value of each bucket.
void DrawBuckets(Stage& oStage);

}  // namespace plotsmith::pictures

#pragma once

#include "pages/pictures/Canvas.h"
#include "pages/pictures/Stage.h"

/// Draws a small sample chart of each chart family.
namespace plotsmith::pictures {

enum class AbcType { kArea, kBar, kColumn };
/// The arrangement of several series in an area, bar or column chart.
enum class Arrangement { kBasic, kCluster, kStack, kStack100 };

/// The number of series, except in a basic chart.
inline constexpr std::size_t kAbcSeries = 3;

void DrawAbc(Stage& oStage, AbcType eType, Arrangement eArrangement, Look eLook);

enum class Slices { kTogether, kExploded };

void DrawPie(Stage& oStage, Slices eSlices, Look eLook);

enum class Background { kGridlines, kQuadrants };

void DrawBubbles(Stage& oStage, Background eBackground, Look eLook);

/// Draws columns of blocks, with a mark at the value of each bucket.
void DrawBuckets(Stage& oStage);

}  // namespace plotsmith::pictures

#pragma once

#include "pages/pictures/Canvas.h"
#include "pages/pictures/Stage.h"

/// A small sample chart of each family.
namespace plotsmith::pictures {

enum class AbcType { kArea, kBar, kColumn };
/// How the series of an area, bar or column chart share a category.
enum class Arrangement { kBasic, kCluster, kStack, kStack100 };

/// Series of such a chart, unless it is basic.
inline constexpr std::size_t kAbcSeries = 3;

void DrawAbc(Stage& oStage, AbcType eType, Arrangement eArrangement, Look eLook);

enum class Slices { kTogether, kExploded };

void DrawPie(Stage& oStage, Slices eSlices, Look eLook);

enum class Background { kGridlines, kQuadrants };

void DrawBubbles(Stage& oStage, Background eBackground, Look eLook);

/// Columns of blocks, and a mark at the value of each bucket.
void DrawBuckets(Stage& oStage);

}  // namespace plotsmith::pictures

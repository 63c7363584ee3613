#include "pages/SamplePictures.h"

#include <algorithm>
#include <string>

#include "pages/pictures/Families.h"
#include "pages/pictures/Stage.h"
#include "runtime/RuntimeError.h"

namespace plotsmith {
namespace {

using namespace pictures;
using enum AbcType;
using enum Arrangement;
using enum Slices;
using enum Background;
using enum Look;

template <AbcType eType, Arrangement eArrangement, Look eLook>
Picture AbcSample() {
  Stage oStage = SampleStage();
  DrawAbc(oStage, eType, eArrangement, eLook);
  return oStage.oCanvas.Result();
}

template <AbcType eType>
Picture AbcTypeSample() {
  Stage oStage = TypeStage(kAbcSeries);
  DrawAbc(oStage, eType, kCluster, kFlat);
  return oStage.oCanvas.Result();
}

template <Slices eSlices, Look eLook>
Picture PieSample() {
  Stage oStage = SampleStage();
  DrawPie(oStage, eSlices, eLook);
  return oStage.oCanvas.Result();
}

Picture PieTypeSample() {
  Stage oStage = TypeStage(kSeriesColors.size());
  DrawPie(oStage, kTogether, kFlat);
  return oStage.oCanvas.Result();
}

template <Background eBackground, Look eLook>
Picture BubbleSample() {
  Stage oStage = SampleStage();
  DrawBubbles(oStage, eBackground, eLook);
  return oStage.oCanvas.Result();
}

Picture BubbleTypeSample() {
  Stage oStage = TypeStage(kSeriesColors.size());
  DrawBubbles(oStage, kGridlines, kFlat);
  return oStage.oCanvas.Result();
}

Picture BucketSample() {
  Stage oStage = SampleStage();
  DrawBuckets(oStage);
  return oStage.oCanvas.Result();
}

Picture BucketTypeSample() {
  Stage oStage = TypeStage(kSeriesColors.size());
  DrawBuckets(oStage);
  return oStage.oCanvas.Result();
}

struct NamedPicture {
  std::string_view sName;
  Picture (*pDraw)();
};

constexpr NamedPicture kPictures[] = {
    {"imgAreaBasic", AbcSample<kArea, kBasic, kFlat>},
    {"imgArea3DBasic", AbcSample<kArea, kBasic, k3D>},
    {"imgAreaCluster", AbcSample<kArea, kCluster, kFlat>},
    {"imgArea3DCluster", AbcSample<kArea, kCluster, k3D>},
    {"imgAreaStack", AbcSample<kArea, kStack, kFlat>},
    {"imgArea3DStack", AbcSample<kArea, kStack, k3D>},
    {"imgAreaStack100", AbcSample<kArea, kStack100, kFlat>},
    {"imgArea3DStack100", AbcSample<kArea, kStack100, k3D>},
    {"imgBarBasic", AbcSample<kBar, kBasic, kFlat>},
    {"imgBar3DBasic", AbcSample<kBar, kBasic, k3D>},
    {"imgBarCluster", AbcSample<kBar, kCluster, kFlat>},
    {"imgBar3DCluster", AbcSample<kBar, kCluster, k3D>},
    {"imgBarStack", AbcSample<kBar, kStack, kFlat>},
    {"imgBar3DStack", AbcSample<kBar, kStack, k3D>},
    {"imgBarStack100", AbcSample<kBar, kStack100, kFlat>},
    {"imgBar3DStack100", AbcSample<kBar, kStack100, k3D>},
    {"imgColumnBasic", AbcSample<kColumn, kBasic, kFlat>},
    {"imgColumn3DBasic", AbcSample<kColumn, kBasic, k3D>},
    {"imgColumnCluster", AbcSample<kColumn, kCluster, kFlat>},
    {"imgColumn3DCluster", AbcSample<kColumn, kCluster, k3D>},
    {"imgColumnStack", AbcSample<kColumn, kStack, kFlat>},
    {"imgColumn3DStack", AbcSample<kColumn, kStack, k3D>},
    {"imgColumnStack100", AbcSample<kColumn, kStack100, kFlat>},
    {"imgColumn3DStack100", AbcSample<kColumn, kStack100, k3D>},
    {"imgPieBasic", PieSample<kTogether, kFlat>},
    {"imgPie3DBasic", PieSample<kTogether, k3D>},
    {"imgPieExplode", PieSample<kExploded, kFlat>},
    {"imgPie3DExplode", PieSample<kExploded, k3D>},
    {"imgBubbleBasic", BubbleSample<kGridlines, kFlat>},
    {"imgBubble3DBasic", BubbleSample<kGridlines, k3D>},
    {"imgBubbleQuad", BubbleSample<kQuadrants, kFlat>},
    {"imgBubble3DQuad", BubbleSample<kQuadrants, k3D>},
    {"imgStrBuckBasic", BucketSample},
    {"imgBar", AbcTypeSample<kBar>},
    {"imgColumn", AbcTypeSample<kColumn>},
    {"imgArea", AbcTypeSample<kArea>},
    {"imgPie", PieTypeSample},
    {"imgBubble", BubbleTypeSample},
    {"imgStrBuck", BucketTypeSample},
    {"imgLegend", LegendPicture},
    {"imgLegendDim", DimLegendPicture},
};

}  // namespace

constinit const std::array<std::string_view, std::size(kPictures)> aSamplePictureNames = [] {
  std::array<std::string_view, std::size(kPictures)> aNames;
  std::ranges::transform(kPictures, aNames.begin(), &NamedPicture::sName);
  return aNames;
}();

Picture SamplePicture(std::string_view sName) {
  const auto it = std::ranges::find(kPictures, sName, &NamedPicture::sName);
  if (it == std::end(kPictures)) {
    throw runtime::RuntimeError(runtime::error::kInvalidCall,
                                "There is no sample picture '" + std::string(sName) +
                                    "'; aSamplePictureNames has the names of those that there are");
  }
  return it->pDraw();
}

}  // namespace plotsmith

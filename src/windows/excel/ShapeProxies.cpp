#include "windows/excel/Proxy.h"

namespace plotsmith::proxies {

#include "windows/excel/ProxyLines.h"
#include "windows/excel/members/Shapes.inc"

namespace {

class ExcelShapes final : public ShapesProxy {
 public:
  using ShapesProxy::ShapesProxy;

  Ref<excel::ShapeRange> Range(const std::vector<std::string>& names) override {
    static com::Member range(L"Range");
    return Get<Ref<excel::ShapeRange>>(range, com::ToArray(names));
  }
};

class ExcelTextFrame final : public TextFrameProxy {
 public:
  using TextFrameProxy::TextFrameProxy;

  Ref<excel::Characters> Characters(std::int32_t start, std::int32_t length) override {
    static com::Member characters(L"Characters");
    if (length >= 0) return Find<Ref<excel::Characters>>(characters, start, length);
    if (start != 1) return Find<Ref<excel::Characters>>(characters, start);
    return Find<Ref<excel::Characters>>(characters);
  }
};

}  // namespace

template <>
Ref<excel::Shapes> Wrap(com::ComPtr<IDispatch> object) {
  return MakeProxy<ExcelShapes>(std::move(object));
}
template <>
Ref<excel::TextFrame> Wrap(com::ComPtr<IDispatch> object) {
  return MakeProxy<ExcelTextFrame>(std::move(object));
}

}  // namespace plotsmith::proxies

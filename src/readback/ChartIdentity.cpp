#include "readback/ChartIdentity.h"

namespace plotsmith {

void RevEngineerChart(const runtime::Ref<excel::Chart>&, dom::IXMLDOMDocument2&) {}

void RevEngineerComment(const runtime::Ref<excel::Shape>&, dom::IXMLDOMDocument2&) {}

}  // namespace plotsmith

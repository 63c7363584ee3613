#include "dom/XmlTree.h"

#include <expat.h>
#include <memory>
#include <new>
#include <string>

namespace plotsmith::dom {
namespace {

/// The maximum depth of elements. A definition has four levels. pugixml destroys branches recursively.
constexpr int kDeepest = 256;

/// Makes nodes of what expat reports. Its handlers return nothing, and an exception can't pass through expat.
/// So a failure is stored and stops the parser.
class Builder {
 public:
  Builder(XML_Parser parser, pugi::xml_node parent) : parser_(parser), parent_(parent) {
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, Handler<&Builder::Start>::Call, Handler<&Builder::End>::Call);
    XML_SetCharacterDataHandler(parser, Handler<&Builder::Characters>::Call);
    XML_SetCdataSectionHandler(parser, Handler<&Builder::StartCdata>::Call, Handler<&Builder::EndText>::Call);
    XML_SetCommentHandler(parser, Handler<&Builder::Comment>::Call);
    XML_SetProcessingInstructionHandler(parser, Handler<&Builder::Instruction>::Call);
    XML_SetSkippedEntityHandler(parser, Handler<&Builder::SkippedEntity>::Call);
    XML_SetExternalEntityRefHandler(parser, [](auto...) { return static_cast<int>(XML_STATUS_ERROR); });
  }

  IXMLDOMParseError Parse(std::string_view xml) {
    const bool parsed =
        XML_Parse(parser_, xml.data(), static_cast<int>(xml.size()), XML_TRUE) == XML_STATUS_OK;
    if (noMemory_) throw std::bad_alloc();
    if (parsed) return {};
    return {reason_.empty() ? XML_ErrorString(XML_GetErrorCode(parser_)) : reason_,
            static_cast<std::int32_t>(XML_GetCurrentLineNumber(parser_)),
            static_cast<std::int32_t>(XML_GetCurrentColumnNumber(parser_)) + 1};
  }

 private:
  /// The C function that calls a member.
  template <auto member>
  struct Handler {
    template <class... Arguments>
    static void Call(void* builder, Arguments... arguments) {
      auto& self = *static_cast<Builder*>(builder);
      if (self.Failed()) return;  // expat may report the end of an element even after a stop
      try {
        (self.*member)(arguments...);
      } catch (const std::bad_alloc&) {
        self.noMemory_ = true;
        XML_StopParser(self.parser_, XML_FALSE);
      }
    }
  };

  bool Failed() const { return noMemory_ || !reason_.empty(); }
  void Start(const XML_Char* name, const XML_Char** attributes) {
    EndText();
    if (++depth_ > kDeepest) return Refuse("elements are nested deeper than " + std::to_string(kDeepest));
    parent_ = Made(parent_.append_child(name));
    for (; attributes[0] != nullptr; attributes += 2) {
      if (!parent_.append_attribute(attributes[0]).set_value(attributes[1])) throw std::bad_alloc();
    }
  }
  void End(const XML_Char*) {
    EndText();
    --depth_;
    parent_ = parent_.parent();
  }
  void StartCdata() {
    EndText();
    type_ = pugi::node_cdata;
  }
  /// Collects a text, because expat reports each line and each entity by itself.
  void Characters(const XML_Char* text, int size) { text_.append(text, static_cast<std::size_t>(size)); }
  void EndText() {
    if (!text_.empty() || type_ == pugi::node_cdata) AppendValue(type_, text_.c_str());
    text_.clear();
    type_ = pugi::node_pcdata;
  }
  void Comment(const XML_Char* text) {
    EndText();
    AppendValue(pugi::node_comment, text);
  }
  void Instruction(const XML_Char* target, const XML_Char* data) {
    EndText();
    AppendValue(pugi::node_pi, data).set_name(target);
  }
  void SkippedEntity(const XML_Char* name, int) {
    Refuse("the entity '" + std::string(name) + "' is external");
  }

  pugi::xml_node AppendValue(pugi::xml_node_type type, const char* value) {
    pugi::xml_node node = Made(parent_.append_child(type));
    if (!node.set_value(value)) throw std::bad_alloc();
    return node;
  }
  static pugi::xml_node Made(pugi::xml_node node) { return node ? node : throw std::bad_alloc(); }
  void Refuse(std::string reason) {
    if (reason_.empty()) reason_ = std::move(reason);
    XML_StopParser(parser_, XML_FALSE);
  }

  XML_Parser parser_;
  pugi::xml_node parent_;
  int depth_ = 0;
  pugi::xml_node_type type_ = pugi::node_pcdata;  // of the text that is being collected
  std::string text_;
  std::string reason_;
  bool noMemory_ = false;
};

}  // namespace

IXMLDOMParseError AppendXml(pugi::xml_node parent, std::string_view xml) {
  const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                            XML_ParserFree);
  if (!parser) throw std::bad_alloc();
  return Builder(parser.get(), parent).Parse(xml);
}

}  // namespace plotsmith::dom

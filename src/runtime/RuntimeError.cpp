#include "runtime/RuntimeError.h"

#include <new>
#include <utility>

namespace plotsmith::runtime {
namespace {

const char* StandardDescription(int number) {
  switch (number) {
    case error::kInvalidCall:
      return "Invalid procedure call or argument";
    case error::kOverflow:
      return "Overflow";
    case error::kOutOfMemory:
      return "Out of memory";
    case error::kSubscript:
      return "Subscript out of range";
    case error::kTypeMismatch:
      return "Type mismatch";
    case error::kOutOfStackSpace:
      return "Out of stack space";
    case error::kObjectNotSet:
      return "Object variable or With block variable not set";
    case error::kInvalidNull:
      return "Invalid use of Null";
    case error::kInvalidPropertyValue:
      return "Invalid property value";
    case error::kInvalidArrayIndex:
      return "Invalid property array index";
    case error::kReadOnlyProperty:
      return "Property is read-only";
    case error::kNoSuchMember:
      return "Object doesn't support this property or method";
    case error::kAutomation:
      return "Automation error";
    case error::kKeyExists:
      return "This key is already associated with an element of this collection";
    default:
      return "Application-defined or object-defined error";
  }
}

}  // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, StandardDescription(number)) {}

RuntimeError::RuntimeError(int number, std::string description, std::string source)
    : number_(number), description_(std::move(description)), source_(std::move(source)) {}

RuntimeError CurrentError() {
  try {
    throw;
  } catch (const RuntimeError& e) {
    return e;
  } catch (const std::bad_alloc&) {
    memoryRanOut = true;
    return RuntimeError(error::kOutOfMemory);
  } catch (const std::exception& e) {
    return RuntimeError(error::kAutomation, e.what());
  } catch (...) {
    return RuntimeError(error::kAutomation);
  }
}

}  // namespace plotsmith::runtime

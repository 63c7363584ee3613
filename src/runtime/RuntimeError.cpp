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
    case error::kArrayLocked:
      return "This array is fixed or temporarily locked";
    case error::kDivisionByZero:
      return "Division by zero";
    case error::kTypeMismatch:
      return "Type mismatch";
    case error::kOutOfStackSpace:
      return "Out of stack space";
    case error::kPermission:
      return "Permission denied";
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
    case error::kObjectRequired:
      return "Object required";
    case error::kNoSuchInterface:
      return "Class does not support Automation or does not support expected interface";
    case error::kNoSuchMember:
      return "Object doesn't support this property or method";
    case error::kAutomation:
      return "Automation error";
    case error::kNoSuchAction:
      return "Object doesn't support this action";
    case error::kNoNamedArguments:
      return "Object doesn't support named arguments";
    case error::kNoSuchLocale:
      return "Object doesn't support current locale setting";
    case error::kNoSuchNamedArgument:
      return "Named argument not found";
    case error::kArgumentNotOptional:
      return "Argument not optional";
    case error::kArgumentCount:
      return "Wrong number of arguments or invalid property assignment";
    case error::kNotACollection:
      return "Object not a collection";
    case error::kKeyExists:
      return "This key is already associated with an element of this collection";
    case error::kNoSuchVariantType:
      return "Variable uses an Automation type not supported in Visual Basic";
    case error::kServerUnavailable:
      return "The remote server machine does not exist or is unavailable";
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

#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/Variant.h"

namespace plotsmith::xlsx {

/// Writes down each member call that changes something, one line each, in the words of Excel's macro
/// language: `Chart.ChartType = 57`, `Chart.SeriesCollection.NewSeries`. Off unless it is given a sink; the
/// lines aren't even made then.
class Journal {
 public:
  using Sink = std::function<void(std::string_view line)>;

  void SetSink(Sink sink) { sink_ = std::move(sink); }
  explicit operator bool() const { return static_cast<bool>(sink_); }
  /// How many changing calls there were, counted whether or not there is a sink. Somebody who shows the
  /// workbook looks at it again when the count has grown.
  std::uint64_t CallCount() const { return calls_; }

  /// `object` names the object by its path, and is only asked when the journal is on.
  template <class Path>
  void Put(const Path& object, std::string_view property, const runtime::Variant& value) const {
    ++calls_;
    if (sink_) sink_(object() + "." + std::string(property) + " = " + Literal(value));
  }
  template <class Path>
  void Call(const Path& object, std::string_view method,
            std::initializer_list<runtime::Variant> arguments = {}) const {
    ++calls_;
    if (!sink_) return;
    std::string line = object() + "." + std::string(method);
    if (arguments.size() > 0) line += "(" + Literals(arguments) + ")";
    sink_(line);
  }

  /// A value as the language writes it.
  static std::string Literal(const runtime::Variant& value);
  static std::string Literals(std::initializer_list<runtime::Variant> values);

 private:
  Sink sink_;
  mutable std::uint64_t calls_ = 0;
};

}  // namespace plotsmith::xlsx

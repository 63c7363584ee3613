#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/Variant.h"

namespace plotsmith::xlsx {

/// Records each call that changes something as a line in Excel's macro language: `Chart.ChartType = 57`,
/// `Chart.SeriesCollection.NewSeries`. Without a sink, no lines are made.
class Journal {
 public:
  /// A function that gets the lines of the journal.
  using Sink = std::function<void(std::string_view line)>;

  /// Passes each further line to `sink`; an empty function stops this.
  void SetSink(Sink sink) { sink_ = std::move(sink); }
  /// Returns true if there is a sink.
  explicit operator bool() const { return static_cast<bool>(sink_); }
  /// The number of changing calls, which are also counted without a sink. A window that shows the workbook
  /// draws it again when the number has increased.
  std::uint64_t CallCount() const { return calls_; }

  /// Records that a property was set. `object` returns the path of the object; it is called only if there is
  /// a sink.
  template <class Path>
  void Put(const Path& object, std::string_view property, const runtime::Variant& value) const {
    ++calls_;
    if (sink_) sink_(object() + "." + std::string(property) + " = " + Literal(value));
  }
  /// Records a method call, like Put.
  template <class Path>
  void Call(const Path& object, std::string_view method,
            std::initializer_list<runtime::Variant> arguments = {}) const {
    ++calls_;
    if (!sink_) return;
    std::string line = object() + "." + std::string(method);
    if (arguments.size() > 0) line += "(" + Literals(arguments) + ")";
    sink_(line);
  }

  /// A value as a literal of the macro language, such as `"text"` or `3.5`.
  static std::string Literal(const runtime::Variant& value);
  /// Several literals, separated by commas.
  static std::string Literals(std::initializer_list<runtime::Variant> values);

 private:
  Sink sink_;
  mutable std::uint64_t calls_ = 0;
};

}  // namespace plotsmith::xlsx

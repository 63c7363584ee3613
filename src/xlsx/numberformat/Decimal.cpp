#include "xlsx/numberformat/Decimal.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace plotsmith::xlsx {

Decimal::Decimal(double magnitude) {
  if (magnitude == 0) return;
  magnitude = std::min(magnitude, std::numeric_limits<double>::max());
  char text[32];
  constexpr int kDigits = 15;
  const auto end =
      std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific, kDigits - 1).ptr;
  digits_[0] = text[0];
  std::copy_n(text + 2, kDigits - 1, digits_.begin() + 1);
  const char* exponent = text + kDigits + 2;  // after d.dd...e
  if (*exponent == '+') ++exponent;
  int highest = 0;
  std::from_chars(exponent, end, highest);
  point_ = highest + 1;
  count_ = kDigits;
  while (digits_[static_cast<std::size_t>(count_ - 1)] == '0') --count_;
}

void Decimal::Round(int decimals) {
  const int keep = point_ + decimals;
  if (keep >= count_) return;
  const bool up = keep >= 0 && digits_[static_cast<std::size_t>(keep)] >= '5';
  count_ = std::max(keep, 0);
  const auto last = [&]() -> char& { return digits_[static_cast<std::size_t>(count_ - 1)]; };
  if (up) {
    while (count_ > 0 && last() == '9') --count_;
    if (count_ > 0) {
      ++last();
    } else {
      digits_[0] = '1';
      count_ = 1;
      ++point_;
    }
  }
  while (count_ > 0 && last() == '0') --count_;
}

void Decimal::AppendTo(std::string& out) const {
  int power = IntegerDigits() - 1;
  if (power < 0) out += '0';
  for (; power >= 0; --power) out += Digit(power);
  if (IsZero() || Lowest() >= 0) return;
  out += '.';
  for (; power >= Lowest(); --power) out += Digit(power);
}

void IntegerWriter::Next(char placeholder) {
  const bool hasDigit = digits_ > power_;
  while (digits_ > power_) {
    --digits_;
    Append(number_.Digit(digits_), digits_);
  }
  if (!hasDigit && placeholder != '#') Append(placeholder == '0' ? '0' : ' ', power_);
  --power_;
}

void IntegerWriter::Append(char digit, int power) {
  out_ += digit;
  if (grouping_ && power > 0 && power % 3 == 0) out_ += digit == ' ' ? ' ' : ',';
}

}  // namespace plotsmith::xlsx

#include "xlsx/drawing/TextMetrics.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "runtime/Strings.h"

namespace plotsmith::xlsx {
namespace {

/// Advance widths in thousandths of an em: U+0020 to U+007E, then U+00A0 to U+00FF. They come from
/// scripts/font-widths.py, which measures Liberation Sans and Carlito. These fonts have the widths of Arial
/// and Calibri.
using Widths = std::array<std::uint16_t, 95 + 96>;

// clang-format off
constexpr Widths kSans = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667, 611, 778,
    722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278,
    278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584, 278, 333, 556, 556, 556,
    556, 260, 556, 333, 737, 370, 556, 584, 333, 737, 552, 400, 549, 333, 333, 333, 576, 537, 278, 333,
    333, 365, 556, 834, 834, 834, 611, 667, 667, 667, 667, 667, 667, 1000, 722, 667, 667, 667, 667, 278,
    278, 278, 278, 722, 722, 778, 778, 778, 778, 778, 584, 778, 722, 722, 722, 722, 667, 667, 611, 556,
    556, 556, 556, 556, 556, 889, 500, 556, 556, 556, 556, 278, 278, 278, 278, 556, 556, 556, 556, 556,
    556, 556, 549, 611, 556, 556, 556, 556, 500, 556, 500};
constexpr Widths kSansBold = {
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667, 611, 778,
    722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 333,
    278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889, 611, 611,
    611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584, 278, 333, 556, 556, 556,
    556, 280, 556, 333, 737, 370, 556, 584, 333, 737, 552, 400, 549, 333, 333, 333, 576, 556, 278, 333,
    333, 365, 556, 834, 834, 834, 611, 722, 722, 722, 722, 722, 722, 1000, 722, 667, 667, 667, 667, 278,
    278, 278, 278, 722, 722, 778, 778, 778, 778, 778, 584, 778, 722, 722, 722, 722, 667, 667, 611, 556,
    556, 556, 556, 556, 556, 889, 556, 556, 556, 556, 556, 278, 278, 278, 278, 611, 611, 611, 611, 611,
    611, 611, 549, 611, 611, 611, 611, 611, 556, 611, 556};
constexpr Widths kHumanist = {
    226, 326, 401, 498, 507, 715, 682, 221, 303, 303, 498, 498, 250, 306, 252, 386, 507, 507, 507, 507,
    507, 507, 507, 507, 507, 507, 268, 268, 498, 498, 498, 463, 894, 579, 544, 533, 615, 488, 459, 631,
    623, 252, 319, 520, 420, 855, 646, 662, 517, 673, 543, 459, 487, 642, 567, 890, 519, 487, 468, 307,
    386, 307, 498, 498, 291, 479, 525, 423, 525, 498, 305, 471, 525, 229, 239, 455, 229, 799, 525, 527,
    525, 525, 349, 391, 335, 525, 452, 715, 433, 453, 395, 314, 460, 314, 498, 507, 326, 498, 507, 498,
    507, 498, 498, 393, 834, 402, 512, 498, 507, 507, 394, 339, 498, 336, 334, 292, 550, 586, 252, 307,
    246, 422, 512, 636, 671, 675, 463, 579, 579, 579, 579, 579, 579, 763, 533, 488, 488, 488, 488, 252,
    252, 252, 252, 625, 646, 662, 662, 662, 662, 662, 498, 664, 642, 642, 642, 642, 487, 517, 527, 479,
    479, 479, 479, 479, 479, 773, 423, 498, 498, 498, 498, 229, 229, 229, 229, 525, 525, 527, 527, 527,
    527, 527, 498, 529, 525, 525, 525, 525, 453, 525, 453};
constexpr Widths kHumanistBold = {
    226, 326, 438, 498, 507, 729, 705, 233, 312, 312, 498, 498, 258, 306, 267, 430, 507, 507, 507, 507,
    507, 507, 507, 507, 507, 507, 276, 276, 498, 498, 498, 463, 898, 606, 561, 529, 630, 488, 459, 637,
    631, 267, 331, 547, 423, 874, 659, 676, 532, 686, 563, 473, 495, 653, 591, 906, 551, 520, 478, 325,
    430, 325, 498, 498, 300, 494, 537, 418, 537, 503, 316, 474, 537, 246, 255, 480, 246, 813, 537, 538,
    537, 537, 355, 399, 347, 537, 473, 745, 459, 474, 397, 344, 475, 344, 498, 507, 326, 498, 507, 498,
    507, 498, 498, 415, 834, 416, 539, 498, 507, 507, 390, 342, 498, 338, 336, 301, 563, 598, 268, 303,
    252, 435, 539, 658, 691, 702, 463, 606, 606, 606, 606, 606, 606, 775, 529, 488, 488, 488, 488, 267,
    267, 267, 267, 639, 659, 676, 676, 676, 676, 676, 498, 681, 653, 653, 653, 653, 520, 532, 555, 494,
    494, 494, 494, 494, 494, 775, 418, 503, 503, 503, 503, 246, 246, 246, 246, 537, 537, 538, 538, 538,
    538, 538, 498, 544, 537, 537, 537, 537, 474, 537, 474};
// clang-format on

struct Metrics {
  const Widths& regular;
  const Widths& bold;
  double line;  ///< ascent, descent and the gap between lines, in ems
};

constexpr Metrics kArial = {kSans, kSansBold, 1.149};
constexpr Metrics kCalibri = {kHumanist, kHumanistBold, 1.2207};

const Metrics& MetricsOf(std::string_view font) {
  for (const std::string_view narrow : {"Calibri", "Carlito", "Aptos Narrow"}) {
    if (runtime::EqualsIgnoreCase(font.substr(0, narrow.size()), narrow)) return kCalibri;
  }
  return kArial;  // Most sans serif fonts have similar widths.
}

/// Returns true for characters that are as wide as they are high: CJK, Hangul, kana and full-width forms.
bool IsWide(char16_t unit) {
  return (unit >= 0x1100 && unit <= 0x115F) || (unit >= 0x2E80 && unit <= 0xA4CF) ||
         (unit >= 0xAC00 && unit <= 0xD7A3) || (unit >= 0xF900 && unit <= 0xFAFF) ||
         (unit >= 0xFF00 && unit <= 0xFF60);
}

}  // namespace

double TextWidth(std::string_view text, const TextFace& face) {
  const Metrics& metrics = MetricsOf(face.font);
  const Widths& widths = face.bold ? metrics.bold : metrics.regular;
  constexpr char16_t kUsual = u'n';  // for characters that aren't in the table
  double thousandths = 0;
  for (const char16_t unit : runtime::ToUtf16(text)) {
    if (unit >= 0x20 && unit <= 0x7E) {
      thousandths += widths[unit - 0x20u];
    } else if (unit >= 0xA0 && unit <= 0xFF) {
      thousandths += widths[95u + unit - 0xA0u];
    } else if (unit >= 0xD800 && unit <= 0xDFFF) {
      thousandths += 500;  // half of a pictograph or of a rare CJK character
    } else if (unit >= 0x20) {
      thousandths += IsWide(unit) ? 1000 : widths[kUsual - 0x20u];
    }
  }
  return thousandths / 1000 * face.size;
}

double LineHeight(const TextFace& face) { return MetricsOf(face.font).line * face.size; }

}  // namespace plotsmith::xlsx

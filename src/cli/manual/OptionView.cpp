#include <vector>

#include "cli/manual/Manual.h"

namespace plotsmith::cli {

OptionView::OptionView(const CLI::Option& option)
    : value(option.get_items_expected_max() == 0 ? "" : option.get_type_name()),
      description(option.get_description()),
      positional(option.get_positional()),
      required(option.get_required()),
      repeated(option.get_items_expected_max() > 1) {
  if (positional) {
    names = {option.get_name(true)};
  } else {
    for (const std::string& name : option.get_snames()) names.push_back("-" + name);
    for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  }
  if (!option.get_default_str().empty()) description += " (default: " + option.get_default_str() + ")";
}

std::vector<OptionView> OptionsOf(const CLI::App& app) {
  std::vector<OptionView> views;
  for (const CLI::Option* option : app.get_options()) {
    if (app.get_parent() == nullptr || option != app.get_help_ptr()) views.emplace_back(*option);
  }
  std::stable_partition(views.begin(), views.end(), [](const OptionView& view) { return view.positional; });
  return views;
}

}  // namespace plotsmith::cli

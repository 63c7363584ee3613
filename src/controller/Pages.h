#pragma once

#include "runtime/Ref.h"

/// @file
/// The wizard's pages as the controller sees them.
namespace plotsmith {

/// One page of the wizard.
class Page {
 public:
  virtual ~Page() = default;

  /// Loads the page if need be and shows it; returns when it has been unloaded.
  virtual void ShowModal() = 0;
  /// Raises the page's unload event before it returns.
  virtual void Unload() = 0;
  /// Loads the page if need be, without showing it, and stores its input if all of it is valid.
  virtual bool ValidSelections() = 0;
};

/// The pages by the names of their forms.
enum class FormName {
  frmPSSelectAction,
  frmPSSelectTable,
  frmPSLayoutABC,  ///< area, bar and column
  frmPSLayoutBubble,
  frmPSLayoutPie,
  frmPSLayoutStrBuck,  ///< strategic bucket
  frmPSChartLocation,
};

/// The pages of a wizard.
class PageSet {
 public:
  virtual ~PageSet() = default;

  /// Made at its first use, and always the same from then on.
  virtual Page& Form(FormName eForm) = 0;
};

/// The wizard of this program; Nothing in one that has none, which can then refresh but not open the wizard.
extern runtime::Ref<PageSet> oPages;

}  // namespace plotsmith

#include "qt/book/BookView.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <utility>

#include "host/excel/Constants.h"
#include "qt/Texts.h"
#include "qt/book/Colors.h"
#include "qt/book/SheetPage.h"
#include "qt/book/SheetView.h"
#include "runtime/RuntimeError.h"
#include "xlsx/Sheet.h"
#include "xlsx/Workbook.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::qtbook {
namespace {

/// Escapes "&", which marks a shortcut key in a tab.
QString TabText(const QString& name) { return QString(name).replace(QLatin1Char('&'), QLatin1String("&&")); }

/// Shows the busy pointer while it exists. The host reads a sheet when it is first shown, which can take long
/// for a large sheet.
class BusyPointer {
 public:
  BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyPointer() { QApplication::restoreOverrideCursor(); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
};

QLabel* NewLabel(const QString& accessibleName) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setAccessibleName(accessibleName);
  label->setContentsMargins(8, 4, 8, 4);
  return label;
}

/// Sets the widths of the two labels above the sheet, and gives them the colours of a field.
void SetUpLabels(QLabel& address, QLabel& content) {
  // The content is clipped at the edge of the window and doesn't widen it.
  content.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  address.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  address.setFixedWidth(address.fontMetrics().horizontalAdvance(QStringLiteral("XFD1048576")) + 16);
  address.setAlignment(Qt::AlignCenter);
  for (QLabel* label : {&address, &content}) {
    label->setBackgroundRole(QPalette::Base);
    label->setForegroundRole(QPalette::Text);
    label->setAutoFillBackground(true);
  }
}

void SetUpTabs(QTabBar& tabs) {
  tabs.setShape(QTabBar::RoundedSouth);
  tabs.setDocumentMode(true);
  tabs.setExpanding(false);
  tabs.setDrawBase(false);
  tabs.setUsesScrollButtons(true);
  tabs.setElideMode(Qt::ElideNone);
  tabs.setAccessibleName(QStringLiteral("Sheets"));
}

}  // namespace

BookView::BookView(std::shared_ptr<xlsx::Application> host, QWidget* parent)
    : QWidget(parent),
      host_(std::move(host)),
      address_(NewLabel(QStringLiteral("Active cell"))),
      content_(NewLabel(QStringLiteral("Content of the active cell"))),
      pages_(new QStackedWidget),
      tabs_(new QTabBar) {
  SetUpLabels(*address_, *content_);
  SetUpTabs(*tabs_);
  auto* bar = new QHBoxLayout;
  bar->setSpacing(1);
  bar->addWidget(address_);
  bar->addWidget(content_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(bar);
  layout->addSpacing(1);
  layout->addWidget(pages_, 1);
  layout->addWidget(tabs_);
  connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) { ShowTab(tab); });

  UpdateTabs();
  ShowActive();
}

BookView::~BookView() = default;

void BookView::SetChartPainter(ChartPainter painter) {
  chartPainter_ = std::move(painter);
  for (const Tab& tab : list_) {
    if (tab.page != nullptr) tab.page->SetChartPainter(chartPainter_);
  }
}

/// Returns the tabs for the host's current sheets, with their existing pages.
std::vector<BookView::Tab> BookView::ListTabs() {
  std::vector<Tab> tabs;
  for (const auto& entry : host_->Book().Tabs().All()) {
    const std::int32_t visible = entry->object->Visible();
    if (visible == excel::xlSheetVeryHidden) continue;
    Tab tab{entry, qt::TextOf(entry->name), visible == excel::xlSheetHidden, nullptr, 0};
    for (const Tab& known : list_) {
      if (known.sheet.lock() != entry) continue;
      tab.page = known.page;
      tab.seen = known.seen;
    }
    tabs.push_back(std::move(tab));
  }
  return tabs;
}

void BookView::UpdateTabs() {
  std::vector<Tab> tabs = ListTabs();
  const auto isSame = [](const Tab& a, const Tab& b) {
    return a.sheet.lock() == b.sheet.lock() && a.name == b.name && a.hidden == b.hidden;
  };
  if (tabs.size() == list_.size() && std::equal(tabs.begin(), tabs.end(), list_.begin(), isSame)) return;

  const int current = tabs_->currentIndex();
  const auto shown = current < 0 ? nullptr : list_[static_cast<std::size_t>(current)].sheet.lock();
  for (const Tab& known : list_) {
    const bool stays =
        std::any_of(tabs.begin(), tabs.end(), [&](const Tab& tab) { return tab.page == known.page; });
    if (known.page == nullptr || stays) continue;
    pages_->removeWidget(&known.page->Widget());
    known.page->Widget().deleteLater();
  }
  list_ = std::move(tabs);

  int next = 0;
  {
    const QSignalBlocker blocker(tabs_);
    while (tabs_->count() > 0) tabs_->removeTab(tabs_->count() - 1);
    for (const Tab& tab : list_) {
      const int index = tabs_->addTab(TabText(tab.name));
      if (shown && tab.sheet.lock() == shown) next = index;
      if (tab.hidden) tabs_->setTabToolTip(index, QStringLiteral("Hidden sheet"));
      tabs_->setAccessibleTabName(index, tab.hidden ? tab.name + QStringLiteral(", hidden") : tab.name);
    }
    tabs_->setCurrentIndex(next);
  }
  ColorTabs();
  ShowTab(tabs_->currentIndex());
}

void BookView::ColorTabs() {
  const QColor dimmed =
      Between(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.5);
  for (int i = 0; i < tabs_->count(); ++i) {
    if (list_[static_cast<std::size_t>(i)].hidden) tabs_->setTabTextColor(i, dimmed);
  }
}

void BookView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ColorTabs();
}

SheetPage* BookView::MakePage(const Tab& tab) {
  const auto entry = tab.sheet.lock();
  if (!entry) return nullptr;
  SheetPage* page = nullptr;
  const BusyPointer busy;
  if (entry->worksheet) {
    auto* view = new SheetView(host_->Book(), tab.sheet);
    view->OnActiveCell([this] { ShowActiveCell(); });
    view->setAccessibleName(QStringLiteral("Sheet ") + tab.name);
    page = view;
  } else {
    const auto chart = [host = host_, sheet = tab.sheet]() -> excel::Ref<excel::Chart> {
      const auto held = sheet.lock();
      return held ? host->Book().Viewed([&] { return host->Book().ChartOf(*held); }) : nullptr;
    };
    page = new ChartSheetPage(tab.name, chart, nullptr);
  }
  page->SetChartPainter(chartPainter_);
  pages_->addWidget(&page->Widget());
  return page;
}

/// Shows the sheet of the current tab.
void BookView::ShowTab(int index) {
  if (index >= 0) {
    Tab& tab = list_[static_cast<std::size_t>(index)];
    const std::uint64_t calls = host_->Journal().CallCount();
    if (tab.page == nullptr) {
      tab.page = MakePage(tab);
    } else if (tab.seen != calls) {
      tab.page->Refresh();
    }
    tab.seen = calls;
    if (tab.page != nullptr) {
      const bool hadFocus = pages_->currentWidget() != nullptr && pages_->currentWidget()->hasFocus();
      pages_->setCurrentWidget(&tab.page->Widget());
      setFocusProxy(&tab.page->Widget());
      if (hadFocus) tab.page->Widget().setFocus();
    }
  }
  ShowActiveCell();
}

void BookView::Update() {
  const std::uint64_t calls = host_->Journal().CallCount();
  const std::uint64_t activations = host_->Book().Tabs().Activations();
  if (calls == calls_ && activations == activations_) return;
  UpdateTabs();
  if (activations != activations_) {
    ShowActive();
  } else {
    ShowTab(tabs_->currentIndex());
  }
  calls_ = calls;
}

void BookView::ShowActive() {
  activations_ = host_->Book().Tabs().Activations();
  const excel::Ref<excel::Sheet> active = host_->Book().ActiveSheet();
  for (std::size_t i = 0; i < list_.size(); ++i) {
    const auto entry = list_[i].sheet.lock();
    if (entry && entry->object == active.shared()) return TurnTo(static_cast<int>(i));
  }
}

void BookView::TurnTo(int tab) {
  if (tab == tabs_->currentIndex()) return ShowTab(tab);
  tabs_->setCurrentIndex(tab);
}

bool BookView::Reveal(const std::string& alternativeText) {
  const int before = tabs_->currentIndex();
  // Search the visible sheet first, because the others may have to be read.
  std::vector<int> order;
  for (int i = 0; i < tabs_->count(); ++i) order.push_back(i);
  std::stable_partition(order.begin(), order.end(), [&](int tab) { return tab == before; });
  for (const int i : order) {
    const auto entry = list_[static_cast<std::size_t>(i)].sheet.lock();
    if (!entry || !entry->worksheet) continue;
    try {
      const auto frames = SheetSource(host_->Book(), entry).Frames();
      if (FindChart(frames, alternativeText) == frames.size()) continue;
    } catch (const runtime::RuntimeError&) {
      continue;  // A sheet that can't be read has no chart.
    }
    TurnTo(i);
    return ShownSheet() != nullptr && ShownSheet()->Reveal(alternativeText);
  }
  return false;
}

SheetView* BookView::ShownSheet() {
  const int tab = tabs_->currentIndex();
  SheetPage* page = tab < 0 ? nullptr : list_[static_cast<std::size_t>(tab)].page;
  return page == nullptr ? nullptr : page->Cells();
}

void BookView::ShowActiveCell() {
  SheetView* sheet = ShownSheet();
  if (sheet == nullptr) {
    address_->clear();
    content_->clear();
    return;
  }
  const xlsx::CellPlace cell = sheet->ActiveCell();
  address_->setText(qt::TextOf(xlsx::CellAddress(cell.row, cell.column)));
  content_->setText(sheet->ActiveText().simplified());
}

void BookView::keyPressEvent(QKeyEvent* event) {
  const bool control = (event->modifiers() & Qt::ControlModifier) != 0;
  const int step = event->key() == Qt::Key_PageDown ? 1 : event->key() == Qt::Key_PageUp ? -1 : 0;
  if (!control || step == 0) return QWidget::keyPressEvent(event);
  const int next = tabs_->currentIndex() + step;
  if (next >= 0 && next < tabs_->count()) TurnTo(next);
}

}  // namespace plotsmith::qtbook

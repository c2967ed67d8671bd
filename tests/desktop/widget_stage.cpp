// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widget_stage.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <exception>
#include <iostream>

#include "desktop/activation.h"
#include "desktop/chart_widget.h"
#include "desktop/document_view.h"
#include "desktop/form_window.h"
#include "desktop/grid_model.h"
#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"
#include "desktop/report_pages.h"
#include "desktop/text.h"
#include "desktop/widgets.h"
#include "scenario/script.h"

namespace vicetoll {
namespace {

constexpr int kActivationMilliseconds = 1000;

// Text as an input method brings it: in one piece, in the place of what is selected.
void Enter(QWidget& widget, const QString& text) {
  if (text.isEmpty()) return QTest::keyClick(&widget, Qt::Key_Delete);
  QInputMethodEvent typing;
  typing.setCommitString(text);
  QApplication::sendEvent(&widget, &typing);
}

QString CaptionOf(const QWidget& widget) {
  if (const auto* button = dynamic_cast<const CaptionButton*>(&widget)) return button->Caption();
  if (const auto* choice = qobject_cast<const QAbstractButton*>(&widget))
    return WithoutAccessKey(choice->text());
  if (const auto* frame = dynamic_cast<const CaptionFrame*>(&widget)) return frame->title();
  if (const auto* label = dynamic_cast<const CaptionLabel*>(&widget)) return label->text();
  return {};
}

int ColourOf(const QWidget& widget) {
  if (const auto* radio = dynamic_cast<const RadioWidget*>(&widget)) return radio->Colour();
  return -1;
}

// Where nothing stands on the widget; its middle if there is no such place.
QPoint BareGround(const QWidget& widget) {
  constexpr int kStep = 4;
  for (int y = kStep; y < widget.height(); y += kStep)
    for (int x = kStep; x < widget.width(); x += kStep)
      if (widget.childAt(x, y) == nullptr) return {x, y};
  return widget.rect().center();
}

std::string TextOf(const QWidget& widget) {
  if (const auto* list = dynamic_cast<const BlueList*>(&widget)) return FromQt(list->ShownText());
  if (const auto* box = dynamic_cast<const ResultBox*>(&widget)) return FromQt(box->text());
  if (const auto* edit = dynamic_cast<const DocumentEdit*>(&widget)) return edit->Text();
  if (const auto* page = dynamic_cast<const PageBrowser*>(&widget)) return page->Text();
  return {};
}

class WidgetStage : public Stage {
 public:
  WidgetStage(Program& program, WidgetPlatform& platform) : desktop_(program), platform_(platform) {
    desktop_.onFault = [this](const std::exception&) { failure_ = std::current_exception(); };
    platform_.desktop = &desktop_;
  }
  ~WidgetStage() override { platform_.desktop = nullptr; }
  WidgetStage(const WidgetStage&) = delete;
  WidgetStage& operator=(const WidgetStage&) = delete;

  UserOutcome Focus(Control& control) override {
    if (!Reaches(control)) return UserOutcome::Refused;
    QWidget& widget = Widget<QWidget>(control);
    if (widget.focusPolicy() == Qt::NoFocus) return Done();
    if (widget.hasFocus()) widget.clearFocus();
    widget.setFocus(Qt::TabFocusReason);
    return Done();
  }

  UserOutcome Choose(DropDownList& list, int position) override {
    if (!Reaches(list)) return UserOutcome::Refused;
    auto& widget = Widget<BlueList>(list);
    if (position < 0 || position >= widget.count()) return UserOutcome::NoEntry;
    widget.showPopup();
    QCoreApplication::processEvents();
    widget.view()->setCurrentIndex(widget.model()->index(position, 0));
    QTest::keyClick(widget.view(), Qt::Key_Return);
    return Done();
  }

  UserOutcome Click(Control& control) override {
    if (!Reaches(control)) return UserOutcome::Refused;
    if (QAction* entry = Window(control.Window()).MenuEntryOf(control)) {
      entry->trigger();
      return Done();
    }
    QWidget& widget = Widget<QWidget>(control);
    // A click on anything else does nothing in a scenario, as a list would open and a grid select.
    if (qobject_cast<QAbstractButton*>(&widget) != nullptr)
      QTest::mouseClick(&widget, Qt::LeftButton);
    else if (control.Kind() == ControlKind::Panel || control.Kind() == ControlKind::Frame ||
             control.Kind() == ControlKind::Label)
      QTest::mouseClick(&widget, Qt::LeftButton, {}, BareGround(widget));
    return Done();
  }

  UserOutcome SelectTab(TabControl& tabs, int tab) override {
    if (!Reaches(tabs)) return UserOutcome::Refused;
    QTabBar* bar = Widget<TabPages>(tabs).Bar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
    return Done();
  }

  UserOutcome Type(Control& control, std::string_view text) override {
    if (control.Kind() != ControlKind::List && control.Kind() != ControlKind::DocumentText)
      throw BadLine(control.FullName() + " takes no typing");
    if (!Reaches(control)) return UserOutcome::Refused;
    if (control.Kind() == ControlKind::List) {
      auto& list = Widget<BlueList>(control);
      if (!list.isEditable()) return UserOutcome::Refused;
      list.lineEdit()->selectAll();
      Enter(*list.lineEdit(), ToQt(text));
      return Done();
    }
    if (dynamic_cast<DocumentEdit*>(&Widget<QWidget>(control)) == nullptr) return UserOutcome::Refused;
    auto& edit = Widget<DocumentEdit>(control);
    edit.selectAll();
    Enter(edit, ToQtLines(text));
    QTest::keyClick(&edit, Qt::Key_Home, Qt::ControlModifier);
    return Done();
  }

  UserOutcome Resize(Form& form, int width, int height) override {
    FormWindow& window = Window(form);
    if (!window.isVisible()) return UserOutcome::Refused;
    window.resize(window.GetScale().ToPixels(0, 0, width, height).size());
    // The window tells when sizes have settled; the scenario's is settled, to the twip.
    window.TakeSize(width, height);
    return Done();
  }

  UserOutcome SelectText(DocumentText& document, int start, int length) override {
    if (!Reaches(document)) return UserOutcome::Refused;
    auto& edit = Widget<DocumentEdit>(document);
    edit.Select(start, length);
    // Between the two characters of an end of line no cursor can stand.
    if (document.SelStart() != start || document.SelLength() != length)
      desktop_.Enter([&] { document.UserSelects(start, length); });
    return Done();
  }

  UserOutcome SelectCells(Grid& grid, const CellSpan& cells) override {
    if (!Reaches(grid)) return UserOutcome::Refused;
    auto& table = Widget<GridWidget>(grid);
    const auto inside = [&](int row, int column) {
      return row >= 0 && row < grid.RowCount() && column >= 0 && column < grid.ColumnCount();
    };
    if (!inside(cells.row, cells.col) || !inside(cells.rowSel, cells.colSel)) return UserOutcome::NoEntry;
    if (cells.row == 0 || cells.rowSel == 0) {  // the header takes no selection
      desktop_.Enter([&] { grid.UserSelects(cells.row, cells.col, cells.rowSel, cells.colSel); });
      return Done();
    }
    const auto click = [&](int row, int column, Qt::KeyboardModifiers keys) {
      const QModelIndex index = table.model()->index(row - 1, column);
      table.scrollTo(index);
      QTest::mouseClick(table.viewport(), Qt::LeftButton, keys, table.visualRect(index).center());
    };
    click(cells.row, cells.col, Qt::NoModifier);
    if (cells.row != cells.rowSel || cells.col != cells.colSel)
      click(cells.rowSel, cells.colSel, Qt::ShiftModifier);
    QApplication::processEvents();  // the selection is taken when the clicks are through
    return Done();
  }

  ControlState Read(Control& control) override {
    ControlState state;
    FormWindow& window = Window(control.Window());
    if (const QAction* entry = window.MenuEntryOf(control)) {
      state.caption = FromQt(entry->text());
      state.enabled = entry->isEnabled();
      state.visible = entry->isVisible();
      return state;
    }
    const QWidget& widget = *window.WidgetOf(control);
    state.enabled = !widget.testAttribute(Qt::WA_ForceDisabled);
    state.visible = !widget.isHidden();
    state.caption = FromQt(CaptionOf(widget));
    state.colour = ColourOf(widget);
    state.text = TextOf(widget);
    state.length = static_cast<int>(state.text.size());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) state.value = button->isChecked();
    if (const auto* list = dynamic_cast<const BlueList*>(&widget)) {
      state.position = list->currentIndex();
      state.entries = list->count();
    }
    if (const auto* tabs = dynamic_cast<const TabPages*>(&widget)) state.tab = tabs->Bar()->currentIndex();
    if (auto* grid = dynamic_cast<Grid*>(&control)) state.rows = static_cast<int>(Rows(*grid).size());
    if (auto* chart = dynamic_cast<Chart*>(&control)) {
      const ChartContents plotted = Plotted(*chart);
      state.points = static_cast<int>(plotted.bars.empty() ? plotted.months.size() : plotted.bars.size());
    }
    return state;
  }

  ChartContents Plotted(Chart& chart) override {
    QWidget& widget = Widget<QWidget>(chart);
    if (const auto* drawn = dynamic_cast<ChartWidget*>(&widget)) return drawn->Plotted();
    // What stands in the place of a chart says why.
    throw BadLine(chart.FullName() + ": " + dynamic_cast<QLabel&>(widget).text().toStdString());
  }

  FormState Read(Form& form) override {
    const FormWindow& window = Window(form);
    // What the window shows is as large as the form, also where the screen has less room.
    const QWidget& shown = window.GetSheet();
    const Scale& scale = window.GetScale();
    FormState state{FromQt(window.windowTitle()), window.isVisible(), scale.ToTwips(shown.width()),
                    scale.ToTwips(shown.height())};
    // A pixel is many twips: the form knows which of them.
    const QSize size = scale.ToPixels(0, 0, form.Width(), form.Height()).size();
    if (size.width() == shown.width()) state.width = form.Width();
    if (size.height() == shown.height()) state.height = form.Height();
    return state;
  }

  std::vector<std::string> Entries(DropDownList& list) override {
    return Widget<BlueList>(list).Entries().All();
  }

  std::string Text(Control& control) override { return TextOf(Widget<QWidget>(control)); }

  std::vector<std::vector<std::string>> Rows(Grid& grid) override {
    auto& table = Widget<GridWidget>(grid);
    const GridModel& cells = table.Cells();
    std::vector<std::vector<std::string>> rows;
    if (grid.HasHeading()) {
      rows.emplace_back();
      for (int c = 0; c < grid.ColumnCount(); ++c)
        rows.back().push_back(FromQt(cells.headerData(c, Qt::Horizontal, Qt::DisplayRole).toString()));
    }
    for (int r = 0; r < cells.rowCount({}); ++r) {
      rows.emplace_back();
      for (int c = 0; c < grid.ColumnCount(); ++c) rows.back().emplace_back(cells.Cell(r, c));
    }
    return rows;
  }

  CellSpan Selection(Grid& grid) override {
    auto& table = Widget<GridWidget>(grid);
    const QItemSelection selected = table.selectionModel()->selection();
    // What reaches into the heading the table cannot show.
    if (selected.isEmpty() || grid.Row() == 0 || grid.RowSel() == 0)
      return {grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()};
    const CellRange cells = table.SelectedCells();
    return {cells.row, cells.col, cells.rowSel, cells.colSel};
  }

 private:
  // The window of a form, in step with the core and able to take the focus.
  FormWindow& Window(Form& form) {
    desktop_.Flush();
    return desktop_.WindowOf(form);
  }

  template <class W>
  W& Widget(Control& control) {
    return dynamic_cast<W&>(*Window(control.Window()).WidgetOf(control));
  }

  // Whether a user reaches the control; if so, its window comes to the front, as it would by the user's
  // click.
  bool Reaches(Control& control) {
    FormWindow& window = Window(control.Window());
    if (window.isVisible()) Activate(window);
    if (QAction* entry = window.MenuEntryOf(control))
      return window.isVisible() && entry->isVisible() && entry->isEnabled();
    QWidget* widget = window.WidgetOf(control);
    return widget->isVisible() && widget->isEnabled();
  }

  // Widgets of a window that is not the active one get no focus.
  void Activate(QWidget& window) {
    if (!BringToFront(window, kActivationMilliseconds))
      std::cerr << "a window could not be made the active one\n";
  }

  // What the last action came to; throws what ended the run.
  UserOutcome Done() {
    desktop_.Flush();
    if (failure_) std::rethrow_exception(failure_);
    return UserOutcome::Done;
  }

  Desktop desktop_;
  WidgetPlatform& platform_;
  std::exception_ptr failure_;
};

}  // namespace

std::unique_ptr<Stage> MakeWidgetStage(Program& program, WidgetPlatform& platform) {
  return std::make_unique<WidgetStage>(program, platform);
}

std::optional<std::string> WidgetPlatform::PdfOf(const Pages& pages) {
  return MakePdf(pages, QPageSize(QPageSize::A4)).value().toStdString();
}

Answer WidgetPlatform::ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) {
  const Answer answer = ScriptedPlatform::ShowMessage(title, text, buttons);
  if (desktop != nullptr) desktop->Flush();
  const std::unique_ptr<QMessageBox> box = MakeMessageBox(title, text, buttons);
  QTimer::singleShot(0, box.get(), [&] {
    if (QAbstractButton* button = box->button(ButtonFor(answer, buttons)))
      QTest::mouseClick(button, Qt::LeftButton);
    else
      box->reject();
  });
  return AnswerOf(box->exec());
}

}  // namespace vicetoll

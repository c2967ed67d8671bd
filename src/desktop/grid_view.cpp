// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_view.h"

#include <QHeaderView>
#include <QMouseEvent>

#include "desktop/desktop.h"
#include "desktop/grid_model.h"
#include "desktop/scale.h"

namespace vicetoll {
namespace {

constexpr int kCellPadding = 6;   // pixels on each side of a cell's text
constexpr int kRowPadding = 5;    // pixels of a row beyond the height of its text
constexpr int kEmptyColumn = 40;  // pixels of a column without heading

}  // namespace

GridWidget::GridWidget(QWidget* parent, Grid& grid)
    : QTableView(parent), grid_(grid), model_(new GridModel(grid, this)) {
  setModel(model_);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setWordWrap(false);
  setTextElideMode(Qt::ElideNone);
  setTabKeyNavigation(false);
  setContextMenuPolicy(Qt::NoContextMenu);
  verticalHeader()->hide();
  // Heights that follow from contents would be reckoned row by row.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
  horizontalHeader()->setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
  horizontalHeader()->setHighlightSections(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void GridWidget::TakeScale() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
  FitColumns();
  horizontalHeader()->setFixedHeight(HeadingPixels());
}

void GridWidget::FitColumns() {
  for (int c = 0; c < grid_.ColumnCount(); ++c) horizontalHeader()->resizeSection(c, ColumnPixels(c));
}

void GridWidget::Show() {
  if (model_->Follow()) FitColumns();
  horizontalHeader()->setFixedHeight(HeadingPixels());
  horizontalHeader()->setVisible(grid_.HasHeading());
  ShowSelection();
}

// As wide as the grid has it, and wide enough for every figure and for every word of the heading.
int GridWidget::ColumnPixels(int column) const {
  const QString heading = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  const bool own = grid_.ColumnWidth(column) == Grid::kOwnSize;
  int widest = fontMetrics().horizontalAdvance(model_->LongestText(column));
  for (const QString& word : own ? QStringList(heading) : heading.split(u' '))
    widest = std::max(widest, fontMetrics().horizontalAdvance(word));
  const int needed = widest == 0 ? kEmptyColumn : widest + 2 * kCellPadding;
  return own ? needed : std::max(needed, ScaleOf(this).ToPixels(grid_.ColumnWidth(column)));
}

int GridWidget::HeadingPixels() const {
  int needed = fontMetrics().height() + 6;
  for (int c = 0; c < grid_.ColumnCount(); ++c) {
    const QString heading = model_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
    const QRect room(0, 0, horizontalHeader()->sectionSize(c) - 2 * kCellPadding, 1 << 12);
    needed = std::max(needed, fontMetrics().boundingRect(room, Qt::TextWordWrap, heading).height() + 8);
  }
  if (grid_.HeadingHeight() == Grid::kOwnSize) return needed;
  return std::max(needed, ScaleOf(this).ToPixels(grid_.HeadingHeight()));
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
  // It opens the menu, whose entries mean the cells that are selected.
  if (event->button() != Qt::RightButton) QTableView::mousePressEvent(event);
}

void GridWidget::ShowSelection() {
  const int rows = model_->rowCount({});
  const int top = std::min(grid_.Row(), grid_.RowSel()) - 1;
  const int bottom = std::max(grid_.Row(), grid_.RowSel()) - 1;
  const int left = std::min(grid_.Col(), grid_.ColSel());
  const int right = std::max(grid_.Col(), grid_.ColSel());
  // Row 0 is the heading, which shows no selection.
  const QItemSelection cells(model_->index(std::max(top, 0), left),
                             model_->index(std::min(bottom, rows - 1), right));
  if (bottom < 0 || rows == 0) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex current = model_->index(std::clamp(grid_.RowSel() - 1, 0, rows - 1), grid_.ColSel());
  if (selectionModel()->selection() == cells && currentIndex() == current) return;
  selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  selectionModel()->select(cells, QItemSelectionModel::ClearAndSelect);
}

bool GridWidget::ShowsOtherThan(const CellRange& cells) const {
  const CellRange shown = SelectedCells();
  // What reaches into the heading is shown without it.
  return shown.row != std::max(cells.row, 1) || shown.rowSel != std::max(cells.rowSel, 1) ||
         shown.col != cells.col || shown.colSel != cells.colSel;
}

CellRange GridWidget::SelectedCells() const {
  const QItemSelection selected = selectionModel()->selection();
  if (selected.isEmpty()) return {0, 0, 0, 0};
  const QItemSelectionRange& cells = selected.first();
  const QModelIndex moved = currentIndex();
  const int row = moved.row() == cells.top() ? cells.bottom() : cells.top();
  const int column = moved.column() == cells.left() ? cells.right() : cells.left();
  return {row + 1, column, moved.row() + 1, moved.column()};
}

namespace {

class GridView : public ControlView {
 public:
  GridView(Grid& grid, QWidget* parent, Desktop& desktop)
      : ControlView(grid, new GridWidget(parent, grid)),
        grid_(grid),
        widget_(*static_cast<GridWidget*>(Widget())) {
    // While a selection is drawn out the view tells of it before it has moved the cell in hand: it is taken
    // when the event is through.
    QObject::connect(
        widget_.selectionModel(), &QItemSelectionModel::selectionChanged, &widget_,
        [this, &desktop] { desktop.Enter([this] { TakeSelection(); }); }, Qt::QueuedConnection);
  }

  void TakeScale() override { widget_.TakeScale(); }

 protected:
  void UpdateContents() override { widget_.Show(); }

 private:
  void TakeSelection() {
    const CellRange cells = widget_.SelectedCells();
    const CellRange known{grid_.Row(), grid_.Col(), grid_.RowSel(), grid_.ColSel()};
    if (cells.row != 0 && widget_.ShowsOtherThan(known))
      grid_.UserSelects(cells.row, cells.col, cells.rowSel, cells.colSel);
  }

  Grid& grid_;
  GridWidget& widget_;
};

}  // namespace

std::unique_ptr<ControlView> MakeGridView(Grid& grid, QWidget* parent, Desktop& desktop) {
  return std::make_unique<GridView>(grid, parent, desktop);
}

}  // namespace vicetoll

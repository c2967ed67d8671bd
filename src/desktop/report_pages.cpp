// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/report_pages.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QMarginsF>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "desktop/chart_module.h"
#include "desktop/text.h"

namespace vicetoll {
namespace {

// Points, 72 to the inch.
constexpr double kTitleSize = 18, kSubtitleSize = 11, kTableSize = 8, kSmallest = 4, kFooterSize = 8;
constexpr double kMargin = 42, kBlockGap = 14, kColumnGap = 8, kHeadingGap = 3, kCellMargin = 3;
constexpr double kRowLeading = 1.55, kHeadingLeading = 1.2;  // of the size of the letters
constexpr double kPictureShape = 0.5;                        // height to width
constexpr int kFewestRows = 4;                               // below a picture; fewer go to the next page
constexpr int kResolution = 1200;                            // dots per inch
constexpr QSizeF kSmallestPaper{140, 200};                   // millimetres; a little less than A5

const QColor kInk(0x20, 0x20, 0x28), kPale(0x60, 0x60, 0x70), kRule(0xA0, 0xA0, 0xB0),
    kBand(0xF3, 0xF4, 0xF8);

QFont FontOf(double points, bool bold = false) {
  QFont font;
  font.setPointSizeF(points);
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::PreferNoShaping);  // a ligature could not be searched for
  return font;
}

// The widths of letters one by one: thousands of figures are measured by them.
class LetterWidths {
 public:
  LetterWidths(const QFont& font, QPaintDevice& device) : metrics_(font, &device) {
    for (int i = 0; i < static_cast<int>(plain_.size()); ++i)
      plain_[i] = metrics_.horizontalAdvance(QChar(i));
  }
  double Of(const QString& text) const {
    double width = 0;
    for (const QChar letter : text)
      width +=
          letter.unicode() < plain_.size() ? plain_[letter.unicode()] : metrics_.horizontalAdvance(letter);
    return width;
  }

 private:
  QFontMetricsF metrics_;
  std::array<double, 128> plain_{};
};

// A table, its columns as wide as what stands in them. All lengths are in dots of the device.
class TableLayout {
 public:
  // In at most `room` dots: letters shrink until it fits.
  TableLayout(const PageTable& table, QPaintDevice& device, double room) : table_(table), device_(device) {
    double size = kTableSize;
    Measure(size);
    natural_ = width_;
    if (width_ > room && width_ > 0) Measure(std::max(kSmallest, size * room / width_ * 0.995));
    Widen(room);
  }

  // How wide it is with letters of the usual size.
  double Natural() const { return natural_; }
  bool HasTotals() const { return table_.totals; }
  double RowHeight() const { return Dots(size_ * kRowLeading); }
  double HeadingHeight() const {
    std::size_t lines = 1;
    for (const auto& heading : headings_) lines = std::max(lines, static_cast<std::size_t>(heading.size()));
    return static_cast<double>(lines) * Dots(size_ * kHeadingLeading) + Dots(2 * kHeadingGap);
  }

  void PaintHeading(QPainter& painter, double y) const {
    painter.setFont(FontOf(size_, true));
    painter.setPen(kInk);
    const double line = Dots(size_ * kHeadingLeading);
    const double bottom = y + HeadingHeight();
    for (std::size_t c = 0; c < headings_.size(); ++c) {
      double base = bottom - Dots(kHeadingGap) - static_cast<double>(headings_[c].size() - 1) * line -
                    Dots(size_ * (kHeadingLeading - 1));
      for (const QString& words : headings_[c]) {
        PaintCell(painter, c, base, words, *boldWidths_);
        base += line;
      }
    }
    painter.setPen(QPen(kRule, Dots(0.8)));
    const double rule = bottom - Dots(1);  // clear of the band of a row
    painter.drawLine(QPointF(0, rule), QPointF(width_, rule));
  }

  void PaintRow(QPainter& painter, double y, std::size_t row) const {
    const bool total = table_.totals && row + 1 == table_.rows.size();
    if (total) {
      painter.setPen(QPen(kRule, Dots(0.8)));
      painter.drawLine(QPointF(0, y), QPointF(width_, y));
    } else if (row % 2 == 1) {
      painter.fillRect(QRectF(0, y, width_, RowHeight()), kBand);
    }
    painter.setFont(total ? bold_ : plain_);
    painter.setPen(kInk);
    const double base = y + Dots(size_ * (kRowLeading + 0.7) / 2);
    const auto& cells = table_.rows[row];
    for (std::size_t c = 0; c < cells.size(); ++c)
      if (!cells[c].empty()) PaintCell(painter, c, base, ToQt(cells[c]), total ? *boldWidths_ : *widths_);
  }

 private:
  double Dots(double points) const { return points * device_.logicalDpiY() / 72; }

  void Measure(double size) {
    size_ = size;
    plain_ = FontOf(size);
    bold_ = FontOf(size, true);
    widths_.emplace(plain_, device_);
    boldWidths_.emplace(bold_, device_);
    headings_.clear();
    columns_.clear();
    width_ = 0;
    for (std::size_t c = 0; c < table_.columns.size(); ++c) {
      const double content = ContentWidth(c);
      columns_.push_back(std::max(content, AddHeading(c, std::max(content, Dots(size * 6)))));
      columns_.back() += Dots(kColumnGap * size / kTableSize);
      width_ += columns_.back();
    }
  }

  // Of the longest text: letters of a figure are all as wide.
  double ContentWidth(std::size_t column) const {
    const std::string* longest = nullptr;
    for (const auto& row : table_.rows)
      if (column < row.size() && (longest == nullptr || row[column].size() > longest->size()))
        longest = &row[column];
    return longest == nullptr ? 0 : boldWidths_->Of(ToQt(*longest));
  }

  // Breaks the heading into lines of about that width; returns that of the widest.
  double AddHeading(std::size_t column, double wanted) {
    std::vector<QString> lines;
    double widest = 0;
    for (const QString& word : ToQt(table_.columns[column].heading).split(u' ', Qt::SkipEmptyParts)) {
      const QString longer = lines.empty() ? word : lines.back() + u' ' + word;
      if (!lines.empty() && boldWidths_->Of(longer) <= wanted)
        lines.back() = longer;
      else
        lines.push_back(word);
      widest = std::max(widest, boldWidths_->Of(lines.back()));
    }
    if (lines.empty()) lines.emplace_back();
    headings_.push_back(std::move(lines));
    return widest;
  }

  // Room that is left goes to all columns alike, but not so much that a row falls apart.
  void Widen(double room) {
    const double each =
        std::min((room - width_) / static_cast<double>(columns_.size()), Dots(kColumnGap * 2));
    if (columns_.empty() || each <= 0) return;
    for (double& column : columns_) column += each;
    width_ += each * static_cast<double>(columns_.size());
  }

  void PaintCell(QPainter& painter, std::size_t column, double base, const QString& text,
                 const LetterWidths& widths) const {
    double x = 0;
    for (std::size_t c = 0; c < column; ++c) x += columns_[c];
    x += table_.columns[column].words ? Dots(kCellMargin)
                                      : columns_[column] - Dots(kCellMargin) - widths.Of(text);
    painter.drawText(QPointF(x, base), text);
  }

  const PageTable& table_;
  QPaintDevice& device_;
  double size_ = kTableSize, width_ = 0, natural_ = 0;
  QFont plain_, bold_;
  std::optional<LetterWidths> widths_, boldWidths_;
  std::vector<std::vector<QString>> headings_;
  std::vector<double> columns_;
};

// How painting went.
enum class Painted { Whole, GivenUp, Failed };

// Lays the pages out, twice: to count them, and to paint them.
class PagePainter {
 public:
  PagePainter(const Pages& pages, QPagedPaintDevice& device, const GoOn& goOn)
      : pages_(pages),
        device_(device),
        goOn_(goOn),
        page_(device.pageLayout().paintRectPixels(device.logicalDpiX()).size()),
        summary_(pages.summary, device, page_.width()),
        rows_(pages.rows, device, page_.width()) {}

  Painted Paint() {
    LayOut();
    count_ = number_;
    if (!painter_.begin(&device_)) return Painted::Failed;
    painting_ = true;
    LayOut();
    const bool whole = painting_ && painter_.end();
    if (givenUp_) return Painted::GivenUp;
    return whole ? Painted::Whole : Painted::Failed;
  }

 private:
  double Dots(double points) const { return points * device_.logicalDpiY() / 72; }
  double Bottom() const { return page_.height() - Dots(kFooterSize * 2.5); }

  void LayOut() {
    number_ = 0;
    StartPage();
    PutLine(pages_.title, FontOf(kTitleSize, true), kInk);
    PutLine(pages_.subtitle, FontOf(kSubtitleSize), kPale);
    PutSummary();
    PutPicture();
    PutRows();
  }

  void StartPage() {
    if (painting_ && number_ > 0) {
      givenUp_ = goOn_ && !goOn_(number_, count_);
      painting_ = !givenUp_ && device_.newPage();
    }
    ++number_;
    y_ = 0;
    if (!painting_) return;
    const QFont font = FontOf(kFooterSize);
    const double base = page_.height() - Dots(kFooterSize * 0.3);
    painter_.setFont(font);
    painter_.setPen(kPale);
    if (number_ > 1) painter_.drawText(QPointF(0, base), ToQt(pages_.title + "  " + pages_.subtitle));
    const QString number = QStringLiteral("Page %1 of %2").arg(number_).arg(count_);
    painter_.drawText(QPointF(page_.width() - LetterWidths(font, device_).Of(number), base), number);
  }

  void PutLine(const std::string& text, const QFont& font, const QColor& colour) {
    if (text.empty()) return;
    const double height = Dots(font.pointSizeF() * 1.3);
    if (painting_) {
      painter_.setFont(font);
      painter_.setPen(colour);
      painter_.drawText(QPointF(0, y_ + Dots(font.pointSizeF())), ToQt(text));
    }
    y_ += height;
  }

  void PutSummary() {
    if (pages_.summary.rows.empty()) return;
    y_ += Dots(kBlockGap);
    PutTable(summary_, pages_.summary.rows.size());
  }

  void PutPicture() {
    if (pages_.svg.empty()) return;
    const double height = std::min(page_.width() * kPictureShape, Bottom() * kPictureShape);
    if (y_ + Dots(kBlockGap) + height > Bottom())
      StartPage();
    else
      y_ += Dots(kBlockGap);
    if (painting_) {
      painter_.save();
      PaintPicture(painter_, QRectF(0, y_, page_.width(), height), pages_.svg);
      painter_.restore();
    }
    y_ += height;
  }

  void PutRows() {
    y_ += Dots(kBlockGap);
    if (y_ + rows_.HeadingHeight() + kFewestRows * rows_.RowHeight() > Bottom()) StartPage();
    PutTable(rows_, pages_.rows.rows.size());
  }

  // From page to page, below its heading.
  void PutTable(const TableLayout& table, std::size_t rows) {
    PutHeading(table);
    for (std::size_t row = 0; row < rows; ++row) {
      const int together = table.HasTotals() && row + 2 == rows ? 2 : 1;  // totals never stand alone
      if (y_ + together * table.RowHeight() > Bottom()) {
        StartPage();
        PutHeading(table);
      }
      if (painting_) table.PaintRow(painter_, y_, row);
      y_ += table.RowHeight();
    }
  }
  void PutHeading(const TableLayout& table) {
    if (painting_) table.PaintHeading(painter_, y_);
    y_ += table.HeadingHeight();
  }

  const Pages& pages_;
  QPagedPaintDevice& device_;
  const GoOn& goOn_;
  QSizeF page_;
  TableLayout summary_, rows_;
  QPainter painter_;
  bool painting_ = false, givenUp_ = false;
  int number_ = 0, count_ = 0;
  double y_ = 0;
};

// Qt notes no language: its file is followed by a change to the catalog that does, as the format provides
// for.
void AddLanguage(QByteArray& pdf) {
  const qsizetype type = pdf.indexOf("/Type /Catalog");
  const qsizetype trailer = pdf.lastIndexOf("trailer");
  const qsizetype before = pdf.lastIndexOf("startxref");
  if (type == -1 || trailer == -1 || before == -1) return;
  const qsizetype object = pdf.lastIndexOf(" 0 obj", type);
  const qsizetype line = pdf.lastIndexOf('\n', object) + 1;
  const qsizetype end = pdf.indexOf("endobj", type);
  const QByteArray number = pdf.mid(line, object - line);
  QByteArray catalog = pdf.mid(line, end - line) + "endobj\n";
  catalog.insert(catalog.indexOf("/Type /Catalog"), "/Lang (en-US)\n");
  QByteArray notes = pdf.mid(trailer, before - trailer);
  const QByteArray offset = pdf.mid(before + 9).trimmed().split('\n').first();
  notes.insert(notes.lastIndexOf(">>"), "/Prev " + offset + "\n");
  if (!pdf.endsWith('\n')) pdf += '\n';
  const qsizetype catalogAt = pdf.size();
  pdf += catalog;
  const qsizetype tableAt = pdf.size();
  pdf += "xref\n" + number + " 1\n" + QByteArray::number(catalogAt).rightJustified(10, '0') + " 00000 n \n" +
         notes + "startxref\n" + QByteArray::number(tableAt) + "\n%%EOF\n";
}

void SetMargins(QPagedPaintDevice& device) {
  device.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Point);
}

}  // namespace

QPageSize ReportPaper() { return ReportPaperOf(QPrinterInfo::defaultPrinter().defaultPageSize()); }

QPageSize ReportPaperOf(const QPageSize& printersPaper) {
  const QSizeF size = printersPaper.size(QPageSize::Millimeter);
  const bool large = size.width() >= kSmallestPaper.width() && size.height() >= kSmallestPaper.height();
  return printersPaper.isValid() && large ? printersPaper : QPageSize(QPageSize::A4);
}

void TurnPaper(const Pages& pages, QPagedPaintDevice& device) {
  SetMargins(device);
  device.setPageOrientation(QPageLayout::Portrait);
  const double width = device.pageLayout().paintRectPixels(device.logicalDpiX()).width();
  if (TableLayout(pages.rows, device, width).Natural() > width)
    device.setPageOrientation(QPageLayout::Landscape);
}

bool PaintPages(const Pages& pages, QPagedPaintDevice& device, const GoOn& goOn) {
  return PagePainter(pages, device, goOn).Paint() == Painted::Whole;
}

std::optional<QByteArray> MakePdf(const Pages& pages, const QPageSize& paper, const GoOn& goOn) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(kResolution);
    writer.setPageSize(paper);
    writer.setTitle(ToQt(pages.subtitle.empty() ? pages.title : pages.title + ": " + pages.subtitle));
    writer.setCreator(QStringLiteral("The Vicetoll Financial Calculator"));
    TurnPaper(pages, writer);
    switch (PagePainter(pages, writer, goOn).Paint()) {
      case Painted::Whole:
        break;
      case Painted::GivenUp:
        return std::nullopt;
      case Painted::Failed:
        return QByteArray();
    }
  }
  AddLanguage(bytes);
  return bytes;
}

}  // namespace vicetoll

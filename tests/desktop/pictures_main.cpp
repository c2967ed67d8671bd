// SPDX-License-Identifier: GPL-3.0-or-later
// window-pictures FOLDER [--screen WIDTHxHEIGHT] [--font POINTS] [--theme light|dark|contrast]: draws every
// window and tab to PNG files, to be looked at, as they are on such a screen (1920x1080 if none is told) with
// that size of the system font. Screens of more dots to a pixel are Qt's: QT_SCALE_FACTOR=2.
#include <QAbstractItemView>
#include <QApplication>
#include <QCommandLineParser>
#include <QContextMenuEvent>
#include <QDir>
#include <QEventLoop>
#include <QHash>
#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSet>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"
#include "desktop/toolkit_messages.h"
#include "desktop/widgets.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

// A table of 256 colours for an image: the most frequent one of each kind of colour, so that none gets lost,
// and then the most frequent ones. `colours` begins with the most frequent.
QList<QRgb> ColourTable(const QList<QRgb>& colours) {
  constexpr int kKinds = 200, kSize = 256;
  QList<QRgb> table;
  QSet<QRgb> kinds;
  for (const QRgb colour : colours) {
    const QRgb kind = colour & 0xE0E0E0;
    if (table.size() == kKinds || kinds.contains(kind)) continue;
    kinds.insert(kind);
    table.append(colour);
  }
  for (const QRgb colour : colours)
    if (table.size() < kSize && !table.contains(colour)) table.append(colour);
  return table;
}

// The image in 256 colours, the others turned into their nearest: small files that look the same.
QImage WithFewColours(const QImage& image) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  QList<QRgb> colours = counts.keys();
  std::ranges::sort(colours,
                    [&](QRgb a, QRgb b) { return counts[a] != counts[b] ? counts[a] > counts[b] : a < b; });
  const QList<QRgb> table = ColourTable(colours);
  const auto distance = [](QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b), green = qGreen(a) - qGreen(b), blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
  };
  QHash<QRgb, int> indexOf;
  for (const QRgb colour : colours) {
    const auto nearest = std::ranges::min_element(table, {}, [&](QRgb t) { return distance(t, colour); });
    indexOf[colour] = static_cast<int>(nearest - table.begin());
  }
  QImage small(image.size(), QImage::Format_Indexed8);
  small.setColorTable(table);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) small.setPixel(x, y, indexOf[image.pixel(x, y)]);
  return small;
}

// The scripted world, but for the save dialog, which is Qt's own, and a pause that can be looked into.
class PicturePlatform : public ScriptedPlatform {
 public:
  using ScriptedPlatform::ScriptedPlatform;
  std::function<void()> onPause;

  std::optional<std::string> AskSavePath(std::string_view lastPath) override {
    QtPlatform().AskSavePath(lastPath);
    return ScriptedPlatform::AskSavePath(lastPath);
  }
  void Pause(int) override {
    if (onPause) onPause();
  }
};

class Pictures {
 public:
  Pictures(PicturePlatform& platform, Program& program, Desktop& desktop, QString folder)
      : platform_(platform), program_(program), desktop_(desktop), folder_(std::move(folder)) {}

  void All() {
    Tab(0, 0, "smoking-past");
    Hover(0, "frmRatesPast", "balloon");
    OpenList(0, "comInterestRate1Past", "list");
    Commit(0, Side::Past, "Jun - 2020");
    Tab(0, 0, "smoking-past-set");
    Tab(0, 1, "smoking-future");
    Commit(0, Side::Future, "Jul - 2030");
    Tab(0, 1, "smoking-future-set");
    Tab(0, 2, "smoking-total");
    Charts();
    Reports();
    for (const int sin : {1, 2, 3, 4, 5, 8, 10, 11}) {
      Switch(sin);
      const std::string key = program_.At(sin).Name();
      Tab(sin, 1, (key + "-future").c_str());
      if (sin != 3 && sin != 11) continue;
      Commit(sin, Side::Future, "Jul - 2030");
      if (sin == 3) Tab(sin, 2, (key + "-total").c_str());
      desktop_.Enter([&] { program_.At(sin).SSTab_PastFutureSwitch->UserSelects(kFutureTab); });
      desktop_.Enter([&] { program_.Spd().UserResizes(14000, 7845); });
      Picture(program_.Spd(), (key + "-grid").c_str(),
              [&] { program_.At(sin).Of(Side::Future).cmdAdvResultsSpd->UserClicks(); });
      desktop_.Enter([&] { program_.Spd().Get<Button>("cmdExit").UserClicks(); });
    }
    Picture(program_.Combined(), "combined", [this] {
      program_.Combined().Show();
      program_.Combined().PopulateCombResultsText();
    });
    Picture(program_.SinsChart(), "sins-chart",
            [this] { program_.Combined().Get<Button>("cmdChart").UserClicks(); });
    desktop_.Enter([&] { program_.SinsChart().Hide(); });
    Picture(program_.Info(), "help", [this] { program_.Info().ShowHelpFile(); });
    Picture(program_.Info(), "questions", [this] { program_.Info().ShowInfoFile(); });
    Picture(program_.Info(), "about", [this] { program_.Info().Get<Button>("cmdAbout").UserClicks(); });
    Identification();
  }

 private:
  FormWindow& Window(Form& form) { return desktop_.WindowOf(form); }

  void Save(QWidget& window, const char* name) {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
    Write(window.grab().toImage(), name);
  }
  // What is too large for the screen gets its size after a moment.
  static void Settle() {
    QEventLoop loop;
    QTimer::singleShot(200, &loop, &QEventLoop::quit);
    loop.exec();
  }
  void Write(const QImage& picture, const char* name) {
    const QString path = folder_ + u'/' + QString::fromLatin1(name).toLower() + QStringLiteral(".png");
    const QImage image = WithFewColours(picture.convertToFormat(QImage::Format_RGB32));
    if (!image.save(path, "PNG", 0)) std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
  }
  void Picture(Form& form, const char* name, const std::function<void()>& action) {
    desktop_.Enter(action);
    Save(Window(form), name);
  }
  void Tab(int sin, int tab, const char* name) {
    SinWorkspace& ws = program_.At(sin);
    Picture(ws, name, [&] { ws.SSTab_PastFutureSwitch->UserSelects(tab); });
  }
  void Commit(int sin, Side side, std::string_view stop) {
    SinWorkspace& ws = program_.At(sin);
    SideControls& c = ws.Of(side);
    desktop_.Enter([&] {
      c.comStop->UserFocuses();
      c.comStop->UserPicks(stop);
      c.cmdSetPeriodParams->UserClicks();
    });
    desktop_.Enter([&] { c.optTimePeriod(2).UserClicks(); });
    desktop_.Enter([&] { c.cmdSetPeriodParams->UserClicks(); });
  }
  void Switch(int sin) {
    SinWorkspace& from = program_.GetSession().CurrentSinKey.empty() ? program_.At(0) : program_.Current();
    Picture(program_.Chooser(), "chooser", [&] { from.cmdSwitchSins->UserClicks(); });
    desktop_.Enter([&] { program_.Chooser().Get<Option>("OptSwitchSins", sin).UserClicks(); });
  }
  void Hover(int sin, const char* control, const char* name) {
    FormWindow& window = Window(program_.At(sin));
    QWidget* widget = window.WidgetOf(*program_.At(sin).Find(control));
    QHelpEvent hover(QEvent::ToolTip, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(widget, &hover);
    Save(window, name);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(widget, &leave);
  }
  void OpenList(int sin, const char* control, const char* name) {
    auto* list = dynamic_cast<BlueList*>(Window(program_.At(sin)).WidgetOf(*program_.At(sin).Find(control)));
    list->showPopup();
    Save(*list->view()->window(), name);
    list->hidePopup();
  }
  // The curve of the whole, with a period left out, zoomed in, and without anything to draw.
  void Charts() {
    SinWorkspace& ws = program_.At(0);
    GrowthWindow& growth = program_.Growth();
    Picture(growth, "growth", [&] { ws.Get<Button>("cmdGrowthChart").UserClicks(); });
    desktop_.Enter([&] { growth.GetChart().UserPoints(growth.GetChart().Count() / 2); });
    Save(Window(growth), "growth-cursor");
    const SideControls& future = ws.Of(Side::Future);
    const auto turnOff = [&](int period) {
      desktop_.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(kFutureTab); });
      desktop_.Enter([&] { future.rbnDisabledPeriod(period).UserClicks(); });
    };
    turnOff(2);
    Save(Window(growth), "growth-of-one-period");
    turnOff(1);
    desktop_.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(kPastTab); });
    for (const int period : {1, 2})
      desktop_.Enter([&] { ws.Of(Side::Past).rbnDisabledPeriod(period).UserClicks(); });
    Save(Window(growth), "growth-of-nothing");
    for (Side side : kSides) {
      desktop_.Enter(
          [&] { ws.SSTab_PastFutureSwitch->UserSelects(side == Side::Past ? kPastTab : kFutureTab); });
      for (const int period : {1, 2})
        desktop_.Enter([&] { ws.Of(side).rbnEnabledPeriod(period).UserClicks(); });
    }
    desktop_.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(kTotalTab); });
    desktop_.Enter([&] { growth.Hide(); });
  }
  void Reports() {
    SinWorkspace& ws = program_.At(0);
    Picture(program_.Spd(), "grid", [&] { ws.cmdAdvResultsSpdSummaryTot->UserClicks(); });
    Menu(program_.Spd(), "menu");
    SaveDialog(program_.Spd(), "save-dialog");
    Picture(program_.Doc(), "document-table", [&] { ws.cmdAdvResultsDocSummaryTot->UserClicks(); });
    desktop_.Enter([&] { program_.Doc().UserResizes(19200, 12000); });
    Settle();
    Save(Window(program_.Doc()), "document-table-wide");
    Picture(program_.Doc(), "document-text", [&] { program_.Doc().Get<Option>("Opt_Doc").UserClicks(); });
    for (Form* form : {static_cast<Form*>(&program_.Spd()), static_cast<Form*>(&program_.Doc())})
      desktop_.Enter([&] { form->Get<Button>("cmdExit").UserClicks(); });
  }
  // What opens a loop of its own is drawn from inside, on the window it belongs to, and sent away.
  void DrawInside(QWidget& window, const char* name, QWidget* (*inside)()) {
    QTimer::singleShot(200, &window, [this, &window, name, inside] {
      QWidget* box = inside();
      if (box == nullptr) return;
      box->isWindow() && box->windowType() == Qt::Dialog ? Save(*box, name) : SaveWith(window, *box, name);
      box->close();
    });
  }
  void SaveWith(QWidget& window, QWidget& popup, const char* name) {
    QPixmap picture = window.grab();
    QPainter(&picture).drawPixmap(window.mapFromGlobal(popup.pos()), popup.grab());
    Write(picture.toImage(), name);
  }
  void Menu(Form& form, const char* name) {
    FormWindow& window = Window(form);
    DrawInside(window, name, [] { return QApplication::activePopupWidget(); });
    const QPoint place(250, 180);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, window.mapToGlobal(place));
    QApplication::sendEvent(&window, &event);
  }
  void SaveDialog(Form& form, const char* name) {
    DrawInside(Window(form), name, [] { return QApplication::activeModalWidget(); });
    platform_.answers.files.push_back("/dev/null");
    desktop_.Enter([&] { form.Get<Button>("cmdSaveAs").UserClicks(); });
  }
  void Identification() {
    Switch(0);
    SinWorkspace& ws = program_.At(0);
    Tab(0, 2, "smoking-total-empty");
    desktop_.Enter([&] { ws.Get<Panel>("SSPanel_BackColor", 2).UserClicks(); });
    platform_.onPause = [this, &ws] {
      desktop_.Flush();
      // The third line is on its way.
      if (ws.Canvas().size() == 4 && ws.Canvas().back().text == "The Ash")
        Save(Window(ws), "identification-half");
    };
    Picture(ws, "identification", [&] { ws.Get<Button>("cmdRevealDeveloper").UserClicks(); });
    platform_.onPause = nullptr;
  }

  PicturePlatform& platform_;
  Program& program_;
  Desktop& desktop_;
  QString folder_;
};

void SetSystemFont(int points) {
  QFont font = QApplication::font();
  font.setPointSize(points);
  QApplication::setFont(font);
}

// A system's palette for which the program chooses that theme.
void SetSystemColours(const QString& theme) {
  QPalette palette = QApplication::palette();
  const bool light = theme == QStringLiteral("light");
  const QColor ground = light                             ? QColor(239, 239, 239)
                        : theme == QStringLiteral("dark") ? QColor(50, 50, 50)
                                                          : Qt::black;
  const QColor text = light ? Qt::black : Qt::white;
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::ToolTipBase})
    palette.setColor(role, ground);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(role, text);
  QApplication::setPalette(palette);
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  FilterToolkitMessages();
  QApplication application(argc, argv);
  QCommandLineParser parser;
  const QCommandLineOption font("font", "Size of the system font.", "POINTS");
  const QCommandLineOption theme("theme", "light, dark or contrast.", "NAME");
  const QCommandLineOption screen("screen", "Size of the screen, in its own pixels.", "SIZE", "1920x1080");
  parser.addOptions({font, theme, screen});
  parser.process(application);
  if (parser.positionalArguments().size() != 1) return 2;
  ApplyLook(application);
  if (parser.isSet(font)) SetSystemFont(parser.value(font).toInt());
  if (parser.isSet(theme)) SetSystemColours(parser.value(theme));
  const QString folder = parser.positionalArguments().first();
  QDir().mkpath(folder);
  PicturePlatform platform([](const std::string&) {});
  Program program(platform);
  Desktop desktop(program);
  const QStringList size = parser.value(screen).split(u'x');
  desktop.GetScaling().screen =
      QSize(size.value(0).toInt(), size.value(1).toInt()) / application.devicePixelRatio();
  desktop.TakeScale();
  Pictures(platform, program, desktop, folder).All();
  return 0;
}

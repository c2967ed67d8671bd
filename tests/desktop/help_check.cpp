// SPDX-License-Identifier: GPL-3.0-or-later
// The help that windows give: balloons and their places, the line at the foot, windows beside a workspace.
#include <gtest/gtest.h>

#include <QPointer>
#include <QPushButton>
#include <QWindow>

#include "desktop/accessible.h"
#include "desktop/balloon.h"
#include "desktop/balloon_place.h"
#include "windows_fixture.h"

namespace vicetoll {
namespace {

class Help : public Windows {
 protected:
  const BalloonWidget* Balloon() { return Of(Smoking()).ShownBalloon(); }
};

TEST_F(Help, EndsABalloonWithTheToolTip) {
  Hover(Widget(Smoking(), "optFineDateStartPast"));
  ASSERT_NE(Balloon(), nullptr);
  EXPECT_TRUE(Balloon()->Text().startsWith("Set the Date Resolution")) << Balloon()->Text().toStdString();
  EXPECT_TRUE(Balloon()->Text().endsWith("\n+/- 6 months of Combo Value if Allowed"))
      << Balloon()->Text().toStdString();
  EXPECT_TRUE(Widget(Smoking(), "optFineDateStartPast")
                  .accessibleDescription()
                  .endsWith("+/- 6 months of Combo Value if Allowed"));
}

TEST_F(Help, ShowsTheFramesBalloonOverALabelThatHasNone) {
  Hover(Widget(Smoking(), "lblSmokesPerDayPast"));
  ASSERT_NE(Balloon(), nullptr);
  EXPECT_TRUE(Balloon()->Text().startsWith("Set Parameters related to the frequency of use"));
}

// Over every control of every tab, the pointer in its middle.
TEST_F(Help, NeverCoversTheNextControlOrTheMouse) {
  FormWindow& window = Of(Smoking());
  int balloons = 0;
  for (const int tab : {kPastTab, kFutureTab, kTotalTab}) {
    Open(Smoking(), tab);
    for (const auto& control : Smoking().Controls()) {
      QWidget* widget = window.WidgetOf(*control);
      if (widget == nullptr || !widget->isVisible() || control->Kind() == ControlKind::Frame) continue;
      const QPoint middle = widget->mapTo(&window, widget->rect().center());
      const QPoint onScreen = widget->mapToGlobal(widget->rect().center());
      QHelpEvent hover(QEvent::ToolTip, widget->rect().center(), onScreen);
      QApplication::sendEvent(widget, &hover);
      const BalloonWidget* balloon = window.ShownBalloon();
      if (balloon == nullptr || balloon->Owner() != widget) continue;
      ++balloons;
      EXPECT_FALSE(balloon->geometry().contains(middle)) << control->FullName();
      EXPECT_TRUE(window.rect().contains(balloon->geometry())) << control->FullName();
    }
  }
  EXPECT_GT(balloons, 40);
}

// Qt goes through all that stands in the window then: a balloon that was deleted on the way would be met
// with.
TEST_F(Help, BalloonsGoBehindAWindowThatIsMinimised) {
  Hover(Widget(Smoking(), "comInterestRate1Past"));
  const QPointer<const QWidget> balloon = Balloon();
  ASSERT_FALSE(balloon.isNull());
  Of(Smoking()).showMinimized();
  EXPECT_EQ(Balloon(), nullptr);
  ASSERT_FALSE(balloon.isNull());
  EXPECT_FALSE(balloon->isVisibleTo(&Of(Smoking())));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(balloon.isNull());
}

// ---- Where a balloon goes ----

BalloonNeeds NeedsOf(const QRect& target, const QRect& next) {
  return {.window = {800, 700},
          .target = target,
          .next = next,
          .pointer = {},
          .stem = 14,
          .inset = 11,
          .edge = 4,
          .narrowest = 80,
          // 200 words of 40 by 20 pixels.
          .bodyAt = [](int width) { return QSize(width, 10 * 20 * 40 / width); }};
}

TEST(BalloonPlaces, AreBelowWhereNothingIsInTheWay) {
  const BalloonSpot spot = PlaceBalloon(NeedsOf({100, 100, 100, 30}, {}));
  EXPECT_TRUE(spot.under);
  EXPECT_EQ(spot.whole.top(), 130);
  EXPECT_TRUE(spot.whole.contains(spot.tip));
}

TEST(BalloonPlaces, AvoidTheNextControl) {
  for (const QRect& next : {QRect(100, 135, 100, 30), QRect(210, 100, 100, 30), QRect(0, 135, 800, 30)}) {
    const BalloonSpot spot = PlaceBalloon(NeedsOf({100, 300, 100, 30}, next.translated(0, 200)));
    EXPECT_FALSE(spot.whole.intersects(next.translated(0, 200)));
    EXPECT_FALSE(spot.whole.intersects(QRect(100, 300, 100, 30)));
    EXPECT_TRUE(QRect(0, 0, 800, 700).contains(spot.whole));
  }
}

TEST(BalloonPlaces, AreBesideThePointerInATargetThatFillsTheWindow) {
  BalloonNeeds needs = NeedsOf({0, 0, 800, 700}, {});
  needs.pointer = QPoint(400, 350);
  const BalloonSpot spot = PlaceBalloon(needs);
  EXPECT_FALSE(spot.whole.contains(400, 350));
  EXPECT_TRUE(QRect(0, 0, 800, 700).contains(spot.whole));
}

// ---- Windows beside a workspace ----

TEST_F(Help, KeepsOtherWindowsBeforeTheWorkspaceInFront) {
  desktop.Enter([&] { Smoking().Get<Button>("cmdHelp").UserClicks(); });
  FormWindow& help = Of(program.Info());
  EXPECT_EQ(help.windowHandle()->transientParent(), Of(Smoking()).windowHandle());
  SinWorkspace& gambling = Visit(2);
  EXPECT_TRUE(help.isVisible());
  EXPECT_EQ(help.windowHandle()->transientParent(), Of(gambling).windowHandle());
}

TEST_F(Help, SaysHowToLeaveAReport) {
  SideControls& past = Smoking().Of(Side::Past);
  desktop.Enter([&] { past.cmdSetPeriodParams->UserClicks(); });
  desktop.Enter([&] { past.cmdAdvResultsSpd->UserClicks(); });
  Of(program.Spd()).close();
  EXPECT_TRUE(program.Spd().Shown());
  const std::string told = "Use Exit to close \"Advanced Smoking Results - SpreadSheet Style\"";
  EXPECT_EQ(program.Spd().Hint(), told);
  EXPECT_EQ(Smoking().Hint(), told);
}

// ---- The line at the foot ----

TEST_F(Help, TellsOfWhatThePointerComesTo) {
  QEnterEvent enter(QPointF(3, 3), QPointF(3, 3), QPointF(3, 3));
  QApplication::sendEvent(&Widget(Smoking(), "comStartPast"), &enter);
  EXPECT_EQ(Smoking().Hint(), "Start Smoking Date for Period");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Widget(Smoking(), "comStartPast"), &leave);
  EXPECT_EQ(Smoking().Hint(), "Choose dates, amount and cost, then press Set Past Period 1 Parameters");
}

// Where a row of buttons stands at the foot, between them: nothing is said unseen, or over a button.
TEST_F(Help, HasRoomBetweenTheButtonsOfAChart) {
  desktop.Enter([&] { Smoking().Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
  desktop.Enter([&] { Smoking().Get<Button>("cmdGrowthChart").UserClicks(); });
  desktop.Enter([&] { program.Growth().Say("Saved in chart.png"); });
  FormWindow& window = Of(program.Growth());
  int said = 0;
  for (const QWidget* text : window.GetSheet().findChildren<QWidget*>()) {
    if (dynamic_cast<const SpokenText*>(text) == nullptr || text->accessibleName() != "Saved in chart.png")
      continue;
    ++said;
    EXPECT_GT(text->width(), 150);
    for (const QPushButton* button : window.GetSheet().findChildren<QPushButton*>())
      EXPECT_FALSE(button->geometry().intersects(text->geometry())) << button->objectName().toStdString();
  }
  EXPECT_EQ(said, 1);
}

}  // namespace
}  // namespace vicetoll

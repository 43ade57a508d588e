// What keyboard and screen reader need, on every form in its real window.

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>

#include "desk.h"
#include "desktop/questions.h"
#include "desktop/theme.h"

namespace desktop {
namespace {

class EveryForm : public Desk {
 protected:
  /// Opens one form after the other over a sheet.
  template <class Check>
  void Visit(Check check) {
    ShowSheet();
    forms_.Show("frmCable");  // its dialogues show what stands on it
    for (const std::string& name : forms_.KnownNames()) {
      if (name == "frmDemoDialog") continue;
      SCOPED_TRACE(name);
      forms::Form& form = forms_.Show(name);
      FormView& view = *presenter_.ViewOf(form);
      QApplication::setActiveWindow(view.window());
      QApplication::processEvents();
      check(form, view);
      if (name != "frmOrifice" && name != "frmCable") forms_.Unload(form);
      QTest::qWait(1);
    }
  }

  static bool TakesTab(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
  }

  /// The widgets of a form's controls that the tab key can reach now.
  static std::vector<QWidget*> Reachable(const forms::Form& form, const FormView& view) {
    std::vector<QWidget*> widgets;
    for (const forms::Control* control : form.TabOrder()) {
      QWidget* const widget = view.WidgetOf(*control);
      if (widget != nullptr && TakesTab(*widget)) widgets.push_back(widget);
    }
    return widgets;
  }
};

TEST_F(EveryForm, FieldsHaveNamesAndTips) {
  Visit([](const forms::Form& form, const FormView& view) {
    for (const QWidget* widget : Reachable(form, view)) {
      SCOPED_TRACE(widget->objectName().toStdString());
      EXPECT_NE(widget->accessibleName(), QString());
      EXPECT_NE(widget->accessibleDescription(), QString());
      EXPECT_NE(widget->toolTip(), QString());
    }
  });
}

/// The entry field whose left end comes next on the line of a caption, as the eye finds it.
const QWidget* FieldBeside(const QLabel& caption) {
  const QWidget* nearest = nullptr;
  for (const QObject* child : caption.parentWidget()->children()) {
    const auto* const widget = qobject_cast<const QWidget*>(child);
    if (widget == nullptr || !widget->isVisible() || widget->x() <= caption.x()) continue;
    const int middle = widget->geometry().center().y();
    if (middle < caption.geometry().top() || middle > caption.geometry().bottom()) continue;
    if (nearest == nullptr || widget->x() < nearest->x()) nearest = widget;
  }
  const bool field = qobject_cast<const QLineEdit*>(nearest) != nullptr ||
                     qobject_cast<const QComboBox*>(nearest) != nullptr;
  return field ? nearest : nullptr;
}

TEST_F(EveryForm, CaptionsBelongToTheirFields) {
  int captions = 0;
  Visit([&](const forms::Form&, const FormView& view) {
    for (const QLabel* label : view.findChildren<QLabel*>()) {
      if (label->property("look") != QStringLiteral("caption") || label->text().isEmpty()) continue;
      const QWidget* const field = label->isVisible() ? FieldBeside(*label) : nullptr;
      if (field == nullptr) continue;
      ++captions;
      EXPECT_EQ(label->buddy(), field) << label->text().toStdString();
    }
  });
  EXPECT_GT(captions, 200);
}

/// Whether b is read after a, both of one table: on a line below or further right.
bool IsReadAfter(const QWidget& a, const QWidget& b) {
  const QPoint from = a.mapTo(a.window(), a.rect().center());
  const QPoint to = b.mapTo(b.window(), b.rect().center());
  if (to.y() > from.y() + a.height() / 2) return true;
  return to.x() > from.x() && to.y() > from.y() - a.height() / 2;
}

/// Whether a form that scrolls shows the whole widget, or as much as there is room for.
bool IsInView(const QWidget& widget, const FormView& view) {
  constexpr QSize kMargins(16, 16);
  const QSize seen = widget.visibleRegion().boundingRect().size();
  const QSize most = widget.size().boundedTo(view.viewport()->size() - kMargins);
  return seen.width() >= most.width() && seen.height() >= most.height();
}

TEST_F(EveryForm, TabWalksThroughAllInReadingOrder) {
  Visit([](const forms::Form& form, FormView& view) {
    std::vector<QWidget*> left = Reachable(form, view);
    if (left.empty()) return;
    QWidget* const start = QApplication::focusWidget();
    ASSERT_TRUE(start != nullptr && view.isAncestorOf(start));
    const std::size_t rounds = left.size() + 20;
    QWidget* focus = start;
    for (std::size_t i = 0; i < rounds; ++i) {
      std::erase(left, focus);
      QWidget* const before = focus;
      QTest::keyClick(focus, Qt::Key_Tab);
      focus = QApplication::focusWidget();
      ASSERT_NE(focus, nullptr);
      EXPECT_TRUE(IsInView(*focus, view)) << focus->objectName().toStdString();
      if (focus == start) break;
      const bool wraps = focus == Reachable(form, view).front();
      if (before->parentWidget() == focus->parentWidget() && !wraps) {
        EXPECT_TRUE(IsReadAfter(*before, *focus))
            << before->objectName().toStdString() << " to " << focus->objectName().toStdString();
      }
    }
    EXPECT_EQ(focus, start);
    for (const QWidget* widget : left) ADD_FAILURE() << widget->objectName().toStdString();
  });
}

/// How much of a widget's edge, three pixels wide, stands out by 3 to 1 from how it was before.
double ShareOfEdgeThatShows(const QImage& before, const QImage& after, const QRect& edge) {
  int all = 0;
  int shown = 0;
  const auto differs = [&](QPoint at, QPoint inwards) {
    ++all;
    for (const QPoint pixel : {at, at + inwards, at + 2 * inwards}) {
      if (Contrast(before.pixelColor(pixel), after.pixelColor(pixel)) >= 3) {
        ++shown;
        return;
      }
    }
  };
  for (int x = edge.left() + 4; x < edge.right() - 4; ++x) {
    differs({x, edge.top()}, {0, 1});
    differs({x, edge.bottom()}, {0, -1});
  }
  for (int y = edge.top() + 4; y < edge.bottom() - 4; ++y) {
    differs({edge.left(), y}, {1, 0});
    differs({edge.right(), y}, {-1, 0});
  }
  return static_cast<double>(shown) / std::max(all, 1);
}

/// As it looks on its ground.
QImage PictureOf(QWidget& widget) {
  QImage image(widget.size(), QImage::Format_RGB32);
  image.fill(Theme::Current().card);
  widget.render(&image, {}, {}, QWidget::DrawChildren);
  return image;
}

// WCAG 2.1, success criteria 2.4.7 and 1.4.11: the focus is visible, by 3 to 1.
TEST_F(EveryForm, FocusShowsInBothThemes) {
  const QPalette before = QApplication::palette();
  for (const Theme* theme : {&Theme::Light(), &Theme::Dark()}) {
    SCOPED_TRACE(theme->dark ? "dark" : "light");
    QApplication::setPalette(PaletteOf(*theme));
    Visit([](const forms::Form& form, FormView& view) {
      for (QWidget* widget : Reachable(form, view)) {
        if (!TakesTab(*widget)) continue;  // another one's focus has changed it
        SCOPED_TRACE(widget->objectName().toStdString());
        if (QWidget* const focus = QApplication::focusWidget()) focus->clearFocus();
        const QImage plain = PictureOf(*widget);
        widget->setFocus(Qt::TabFocusReason);
        QRect edge = widget->rect();
        if (const auto* const tabs = qobject_cast<QTabBar*>(widget)) {
          edge = tabs->tabRect(tabs->currentIndex()) & edge;
        }
        EXPECT_GT(ShareOfEdgeThatShows(plain, PictureOf(*widget), edge), 0.6);
      }
    });
    forms_.UnloadAll();
  }
  QApplication::setPalette(before);
}

TEST(Boxes, ShowWhichButtonHasTheFocus) {
  for (const Theme* theme : {&Theme::Light(), &Theme::Dark()}) {
    QWidget window;
    window.setStyleSheet(WindowStyle(*theme));
    MessageBox box({"続けますか", {}, common::Icon::kQuestion, common::Buttons::kYesNo}, &window);
    box.show();
    QApplication::setActiveWindow(&box);
    for (QAbstractButton* button : box.buttons()) {
      if (QWidget* const focus = QApplication::focusWidget()) focus->clearFocus();
      const QImage plain = PictureOf(*button);
      button->setFocus(Qt::TabFocusReason);
      EXPECT_GT(ShareOfEdgeThatShows(plain, PictureOf(*button), button->rect()), 0.6);
    }
  }
}

TEST_F(EveryForm, ClickOnACaptionGoesToItsField) {
  auto& sheet = ShowSheet();
  auto& caption = Find<QLabel>(sheet, "lbl温度");
  QTest::mouseClick(&caption, Qt::LeftButton);
  EXPECT_EQ(sheet.Focused(), &sheet.txt温度);
  EXPECT_EQ(caption.toolTip(), Find<QLineEdit>(sheet, "txt温度").toolTip());
  int clicks = 0;
  sheet.lbl圧力.onClick = [&] { ++clicks; };
  QTest::mouseClick(&Find<QLabel>(sheet, "lbl圧力"), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(sheet.Focused(), &sheet.txt温度);
}

}  // namespace
}  // namespace desktop

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "common/real.h"
#include "common/text.h"
#include "desktop/binding.h"
#include "desktop/reporting.h"

namespace desktop {

namespace {

// Room round the letters, in letter heights.
constexpr double kListPaddingEm = 0.12;  // above and below a line of a list, as in the style sheet
constexpr double kListFrameEm = 0.6;
constexpr double kScrollBarEm = 2;
constexpr double kMarkEm = 2;
constexpr double kArrowEm = 2.2;  // of a combo box, and of a scroll bar in its list

/// A field over which the wheel scrolls the sheet: it must not change a unit or a tab in passing.
template <class Widget, class Kind>
class WithoutWheel : public Reporting<Widget, Kind> {
 public:
  using Reporting<Widget, Kind>::Reporting;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

/// A list box, or a tab strip whose tabs stand at the left.
template <class Kind>
class ListField : public Reporting<QListWidget, Kind> {
 public:
  using Base = Reporting<QListWidget, Kind>;
  using Base::Base;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int before = this->currentRow();
    Base::keyPressEvent(event);
    // What the handler of a key has selected itself is not picked again.
    const bool moved = this->currentRow() != before && this->currentRow() != this->Shown().Index();
    if (moved) PickCurrent();
  }

  void mousePressEvent(QMouseEvent* event) override {
    doubleClicked_ = false;
    Base::mousePressEvent(event);
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    Base::mouseReleaseEvent(event);
    const bool picks = event->button() == Qt::LeftButton && !std::exchange(doubleClicked_, false);
    if (picks) PickCurrent();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    // Its first click has picked the line.
    doubleClicked_ = event->button() == Qt::LeftButton;
    Base::mouseDoubleClickEvent(event);
  }

  /// The right button takes the line under it along, so that its command means that line.
  void contextMenuEvent(QContextMenuEvent* event) override {
    if (this->currentRow() != this->Shown().Index()) PickCurrent();
    Base::contextMenuEvent(event);
  }

 private:
  void PickCurrent() {
    if (this->currentRow() >= 0) this->Shown().Pick(this->currentRow());
  }

  bool doubleClicked_ = false;
};

bool SameItems(const QComboBox& combo, const std::vector<std::string>& items) {
  if (combo.count() != static_cast<int>(items.size())) return false;
  int row = 0;
  return std::all_of(items.begin(), items.end(), [&](const std::string& item) {
    return combo.itemText(row++) == QString::fromStdString(item);
  });
}

QStringList Texts(const std::vector<std::string>& items) {
  QStringList texts;
  for (const std::string& item : items) texts.append(QString::fromStdString(item));
  return texts;
}

void ShowCombo(const forms::ComboBox& box, QComboBox& combo) {
  const QSignalBlocker quiet(combo);
  if (!SameItems(combo, box.Items())) {
    combo.clear();
    combo.addItems(Texts(box.Items()));
  }
  combo.setCurrentIndex(box.Index());
  const QString text = QString::fromStdString(box.Text());
  if (box.Editable() && combo.currentText() != text) combo.setEditText(text);
  ShowCommon(box, combo, Theme::Current().field, forms::kWhite);
}

void MakeEditable(forms::ComboBox& box, QComboBox& combo) {
  combo.setEditable(true);
  combo.setInsertPolicy(QComboBox::NoInsert);
  combo.setCompleter(nullptr);
  combo.lineEdit()->setAcceptDrops(false);
  QObject::connect(combo.lineEdit(), &QLineEdit::textEdited, &combo,
                   [&box](const QString& typed) { box.SetText(typed.toStdString()); });
}

/// Columns of the longest entry.
int LongestItem(const forms::ListControl& list) {
  int longest = 0;
  for (const std::string& item : list.Items()) {
    longest = std::max(longest, common::Cp932Length(item));
  }
  return longest;
}

/// Unit selectors are of one width all over the form; longer lists take what they need.
int ComboWidth(const forms::ComboBox& box) {
  constexpr int kUnitWidth = 10;
  constexpr int kLargestWidth = 36;
  return std::clamp(LongestItem(box), kUnitWidth, kLargestWidth);
}

void ShowList(const forms::ListControl& box, QListWidget& list) {
  const QSignalBlocker quiet(list);
  const int count = box.Count();
  while (list.count() > count) delete list.takeItem(list.count() - 1);
  for (int row = 0; row < count; ++row) {
    const QString text = QString::fromStdString(common::At(box.Items(), row));
    if (row == list.count()) {
      list.addItem(text);
    } else if (list.item(row)->text() != text) {
      list.item(row)->setText(text);
    }
  }
  list.setCurrentRow(box.Index());
  ShowCommon(box, list, Theme::Current().field, forms::kWhite);
}

void ShowCheckList(const forms::CheckList& list, QListWidget& field) {
  const QSignalBlocker quiet(field);
  const int count = list.Count();
  while (field.count() > count) delete field.takeItem(field.count() - 1);
  while (field.count() < count) field.addItem(new QListWidgetItem);
  for (int row = 0; row < count; ++row) {
    QListWidgetItem& item = *field.item(row);
    item.setText(QString::fromStdString(common::At(list.Items(), row)));
    item.setCheckState(list.Marked(row) ? Qt::Checked : Qt::Unchecked);
  }
  field.setCurrentRow(list.Index());
  ShowCommon(list, field, Theme::Current().field, forms::kWhite);
}

/// Columns that a list takes when the layout asks for none; one of fixed pitch holds a tag number
/// and a service.
int OwnColumns(const forms::ListBox& box) {
  constexpr int kOwnWidth = 24;
  constexpr int kFixedPitchWidth = 42;
  return box.FixedPitch() ? kFixedPitchWidth : kOwnWidth;
}

/// Height of a list that shows so many lines.
int HeightOf(int lines, const QFont& font, const Scale& scale) {
  const int line = QFontMetrics(font).height() + 2 * std::max(1, scale.Em(kListPaddingEm));
  return line * lines + scale.Em(kListFrameEm);
}

void ResizeList(const forms::ListBox& box, QListWidget& list, const Scale& scale, int characters) {
  const int columns = characters > 0 ? characters : OwnColumns(box);
  int width = scale.Digits(columns);
  QFont font = UiFont(scale.LetterPixels());
  if (box.FixedPitch()) {
    font = FixedFont(scale.LetterPixels());
    list.setFont(font);
    width = FixedWidth(font, columns);
  }
  list.setMinimumWidth(width + scale.Em(kScrollBarEm));
  list.setMinimumHeight(HeightOf(box.VisibleLines(), font, scale));
}

void ShowTabs(const forms::TabStrip& strip, QTabBar& tabs) {
  const QSignalBlocker quiet(tabs);
  while (tabs.count() > strip.Count()) tabs.removeTab(tabs.count() - 1);
  int tab = 0;
  for (const std::string& text : strip.Items()) {
    const QString caption = CaptionOf(text);
    if (tab == tabs.count()) tabs.addTab(caption);
    tabs.setTabText(tab++, caption);
  }
  tabs.setCurrentIndex(strip.Index());
  ShowCommon(strip, tabs, Theme::Current().window, forms::kWhite);
}

/// The widgets of an option group exclude each other, so that the arrow keys walk in it.
void JoinGroup(const forms::OptionButton& option, QRadioButton& button, QWidget& form) {
  const QString name = QLatin1String("options ") + QString::fromStdString(option.Group());
  auto* group = form.findChild<QButtonGroup*>(name, Qt::FindDirectChildrenOnly);
  if (group == nullptr) {
    group = new QButtonGroup(&form);
    group->setObjectName(name);
  }
  group->addButton(&button);
}

/// The tab key goes to the marked option of a group; the arrow keys walk on from there.
void LetTabReachMarked(const QButtonGroup& group) {
  const QList<QAbstractButton*> buttons = group.buttons();
  const bool any = std::any_of(buttons.begin(), buttons.end(),
                               [](const QAbstractButton* button) { return button->isChecked(); });
  for (QAbstractButton* button : buttons) {
    button->setFocusPolicy(button->isChecked() || !any ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

void ShowOption(const forms::OptionButton& option, QRadioButton& button) {
  button.setText(QString::fromStdString(option.Text()));
  QButtonGroup* const group = button.group();
  // The form decides what excludes what; an exclusive group would refuse to be without a mark.
  group->setExclusive(false);
  button.setChecked(option.Checked());
  group->setExclusive(true);
  LetTabReachMarked(*group);
  ShowCommon(option, button, Theme::Current().card, forms::kWhite);
}

void ShowCheck(const forms::CheckBox& check, QCheckBox& button) {
  button.setText(QString::fromStdString(check.Text()));
  button.setChecked(check.Checked());
  ShowCommon(check, button, Theme::Current().card, forms::kWhite);
}

Bound BindTabsAtLeft(forms::TabStrip& strip, QWidget& parent) {
  constexpr int kWidth = 20;
  constexpr double kLeastHeightEm = 16;
  auto* const field = new ListField<forms::TabStrip>(strip, parent);
  field->setUniformItemSizes(true);
  return {field, [&strip, field] { ShowList(strip, *field); },
          [field](const Scale& scale, int characters) {
            const int width =
                scale.Digits(characters > 0 ? characters : kWidth) + scale.Em(kScrollBarEm);
            field->setMinimumWidth(width);
            field->setMaximumWidth(width);
            field->setMinimumHeight(scale.Em(kLeastHeightEm));
          }};
}

}  // namespace

Bound Bind(forms::ComboBox& box, QWidget& parent) {
  constexpr int kMostVisible = 18;
  auto* const combo = new WithoutWheel<QComboBox, forms::ComboBox>(box, parent);
  combo->setMaxVisibleItems(kMostVisible);
  // The combo box's own delegate does not know the style sheet's line height.
  combo->setItemDelegate(new QStyledItemDelegate(combo));
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  if (box.Editable()) MakeEditable(box, *combo);
  const auto show = [&box, combo] { ShowCombo(box, *combo); };
  QObject::connect(combo, &QComboBox::activated, combo, [&box, show](int index) {
    box.Pick(index);
    show();
  });
  return {combo, show, [&box, combo](const Scale& scale, int characters) {
            const int width = characters > 0 ? characters : ComboWidth(box);
            combo->setMinimumWidth(scale.Digits(width) + scale.Em(kArrowEm));
            combo->view()->setMinimumWidth(scale.Digits(LongestItem(box)) + scale.Em(kArrowEm));
          }};
}

Bound Bind(forms::ListBox& list, QWidget& parent) {
  auto* const field = new ListField<forms::ListBox>(list, parent);
  field->setUniformItemSizes(true);
  return {field, [&list, field] { ShowList(list, *field); },
          [&list, field](const Scale& scale, int characters) {
            ResizeList(list, *field, scale, characters);
          }};
}

Bound Bind(forms::CheckList& list, QWidget& parent) {
  constexpr int kOwnWidth = 42;
  auto* const field = new Reporting<QListWidget, forms::CheckList>(list, parent);
  field->setUniformItemSizes(true);
  QObject::connect(field, &QListWidget::itemChanged, field,
                   [&list, field](const QListWidgetItem* item) {
                     list.SetMarked(field->row(item), item->checkState() == Qt::Checked);
                   });
  QObject::connect(field, &QListWidget::currentRowChanged, field, [&list](int row) {
    if (row >= 0 && row < list.Count()) list.Pick(row);
  });
  return {field, [&list, field] { ShowCheckList(list, *field); },
          [&list, field](const Scale& scale, int characters) {
            const QFont font = FixedFont(scale.LetterPixels());
            field->setFont(font);
            field->setMinimumWidth(FixedWidth(font, characters > 0 ? characters : kOwnWidth) +
                                   scale.Em(kMarkEm + kScrollBarEm));
            field->setMinimumHeight(HeightOf(list.VisibleLines(), font, scale));
          }};
}

Bound Bind(forms::TabStrip& strip, QWidget& parent) {
  if (strip.Where() == forms::TabStrip::Side::kLeft) return BindTabsAtLeft(strip, parent);
  auto* const tabs = new WithoutWheel<QTabBar, forms::TabStrip>(strip, parent);
  tabs->setDrawBase(false);
  tabs->setExpanding(false);
  QObject::connect(tabs, &QTabBar::currentChanged, tabs, [&strip](int index) {
    if (index >= 0) strip.Pick(index);
  });
  return {tabs, [&strip, tabs] { ShowTabs(strip, *tabs); }};
}

Bound Bind(forms::OptionButton& option, QWidget& parent) {
  auto* const button = new Reporting<QRadioButton, forms::OptionButton>(option, parent);
  JoinGroup(option, *button, parent);
  const auto show = [&option, button] { ShowOption(option, *button); };
  QObject::connect(button, &QRadioButton::clicked, button, [&option, show] {
    option.Choose();
    show();
  });
  return {button, show};
}

Bound Bind(forms::CheckBox& check, QWidget& parent) {
  auto* const button = new Reporting<QCheckBox, forms::CheckBox>(check, parent);
  const auto show = [&check, button] { ShowCheck(check, *button); };
  QObject::connect(button, &QCheckBox::clicked, button, [&check, show] {
    check.Choose();
    show();
  });
  return {button, show};
}

}  // namespace desktop

#include "desktop/cell_typing.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QLineEdit>
#include <utility>

#include "forms/creer_cycle_words.h"
#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/time_value.h"
#include "platform/text.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::fromQt;
using widgets::toQt;

namespace {

namespace column = model::column;

// What the key types; nothing for keys that command.
std::string typedText(const QKeyEvent& event) {
  const bool commands = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const QString text = event.text();
  return commands || text.isEmpty() || !text.front().isPrint() ? std::string() : fromQt(text);
}

bool isDigit(const std::string& text) {
  return text.size() == 1 && text.front() >= '0' && text.front() <= '9';
}

bool isEnterKey(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
         (event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == 0;
}

// Shift+Up and the like, which in an open list mean the rows and not its lines.
bool meansRows(const QKeyEvent& event) {
  const bool vertical = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
  return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0 ||
         (vertical && (event.modifiers() & Qt::ShiftModifier) != 0);
}

bool isModifierKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Shift || event.key() == Qt::Key_Control || event.key() == Qt::Key_Alt ||
         event.key() == Qt::Key_AltGr || event.key() == Qt::Key_Meta;
}

}  // namespace

CellTyping::CellTyping(forms::CreerCycle& editor, widgets::GridTable& table, const Boxes& boxes,
                       Binder& binder, std::function<void()> refresh)
    : QObject(&table),
      editor_(editor),
      grid_(editor.ListView1),
      table_(table),
      boxes_(boxes),
      binder_(binder),
      refresh_(std::move(refresh)) {
  table_.setTyping([this](const QKeyEvent& event) { return onTableKey(event); });
  table_.setTabbing([this](bool forward) { return onTab(forward); });
  for (QObject* watched :
       std::initializer_list<QObject*>{boxes_.list.view(), &boxes_.list, &boxes_.hours, &boxes_.seconds}) {
    watched->installEventFilter(this);
  }
}

bool CellTyping::eventFilter(QObject* watched, QEvent* event) {
  if (watched == boxes_.list.view() && event->type() == QEvent::Show) typed_.clear();
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (watched == boxes_.list.view()) return onListKey(key);
  const bool back = key.key() == Qt::Key_Backtab;
  return (back || key.key() == Qt::Key_Tab) && onBoxTab(*watched, !back);
}

bool CellTyping::typingDuration() const {
  return !digits_.empty() && editor_.Picture2.visible && grid_.selectedRow() == digitRow_;
}

// The list that is open is that of the kinds, which takes no text of the rider's own here.
bool CellTyping::kindOpen() const {
  return table_.pressedColumn() == column::sequence;
}

void CellTyping::endEditing() {
  digits_.clear();
  binder_.run([this] { editor_.Command1.click(); });
}

bool CellTyping::onTableKey(const QKeyEvent& event) {
  if (isModifierKey(event)) return false;
  if (typingDuration() && onDurationKey(event)) return true;
  const std::string text = typedText(event);
  const int row = grid_.selectedRow();
  const int col = table_.pressedColumn();
  if (text.empty() || text == " " || row == 0) return false;
  const bool toDuration = col == column::duration || (row > 1 && col == column::sequence);
  if (isDigit(text) && toDuration) {
    typeDigit(text);
    return true;
  }
  if (col == column::duration || !model::takesValue(grid_, row, col)) return false;
  openList(text);
  return true;
}

// Any other key takes the duration over as it stands, and is then what it is.
bool CellTyping::onDurationKey(const QKeyEvent& event) {
  const std::string text = typedText(event);
  if (isDigit(text)) {
    typeDigit(text);
    return true;
  }
  if (event.key() == Qt::Key_Backspace) {
    digits_.pop_back();
    showDigits();
    return true;
  }
  if (event.key() == Qt::Key_Escape) {
    digits_.clear();
    return false;
  }
  endEditing();
  return isEnterKey(event);
}

void CellTyping::typeDigit(const std::string& digit) {
  if (!typingDuration()) {
    digits_.clear();
    table_.goToColumn(column::duration);
    table_.pressCell();
  }
  binder_.run([this, digit] {
    if (!editor_.Picture2.visible || !model::durationOfDigits(digits_ + digit)) return;
    digits_ += digit;
    digitRow_ = grid_.selectedRow();
    showDigits();
  });
}

void CellTyping::showDigits() {
  const std::string shown = model::durationOfDigits(digits_).value_or(editor_.Label7.caption);
  binder_.run([this, shown] { forms::showInBoxes(forms::durationBoxes(editor_), forms::timeParts(shown)); });
}

void CellTyping::openList(const std::string& text) {
  table_.pressCell();
  binder_.run([this, text] {
    refresh_();
    if (!editor_.Combo1.visible) return;
    boxes_.list.setFocus(Qt::OtherFocusReason);
    boxes_.list.showPopup();
    search(text);
  });
}

// Of the kinds only those of the list can be found; elsewhere what no line begins with is the rider's own
// value.
void CellTyping::search(const std::string& text) {
  const std::optional<int> line = model::lineBeginningWith(editor_.Combo1.lines(), typed_ + text);
  if (!line && kindOpen()) return;
  typed_ += text;
  show(line.value_or(-1));
}

void CellTyping::shorten() {
  typed_ = platform::left(typed_, platform::length(typed_) - 1);
  show(model::lineBeginningWith(editor_.Combo1.lines(), typed_).value_or(-1));
}

void CellTyping::show(int line) {
  found_ = line >= 0;
  boxes_.list.view()->setCurrentIndex(boxes_.list.model()->index(line, 0));
  boxes_.list.setEditText(found_ ? boxes_.list.itemText(line) : toQt(typed_));
}

bool CellTyping::onListKey(const QKeyEvent& event) {
  if (isModifierKey(event)) return false;
  const std::string text = typedText(event);
  const bool begun = !typed_.empty();
  if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
    takeLine();
    if (!onTab(event.key() == Qt::Key_Tab)) table_.setFocus();
    return true;
  }
  if (begun && event.key() == Qt::Key_Backspace) {
    shorten();
    return true;
  }
  if (begun && isEnterKey(event) && !found_) {
    takeLine();
    return true;
  }
  if (begun && meansRows(event)) {
    takeLine();
    QKeyEvent again(event.type(), event.key(), event.modifiers(), event.text());
    QCoreApplication::sendEvent(&table_, &again);
    return true;
  }
  if (text.empty() || (text == " " && !begun)) return false;
  const bool fits = model::lineBeginningWith(editor_.Combo1.lines(), typed_ + text).has_value();
  if (isDigit(text) && kindOpen() && !fits) {
    takeLine();
    typeDigit(text);
  } else {
    search(text);
  }
  return true;
}

// Picks the line that is marked, if it is another one, or stores what was typed, and goes back to the rows.
void CellTyping::takeLine() {
  const int line = boxes_.list.view()->currentIndex().row();
  const std::string typed = std::exchange(typed_, {});
  const bool own = !typed.empty() && !found_;
  const bool picked = line >= 0 && (!typed.empty() || line != editor_.Combo1.index);
  boxes_.list.hidePopup();
  binder_.run([this, line, typed, own, picked] {
    if (own) {
      editor_.Combo1.type(typed);
      editor_.Combo1.enter();
    } else if (picked) {
      editor_.Combo1.pick(line);
    } else {
      editor_.Command1.click();
    }
  });
  table_.setFocus();
}

bool CellTyping::onTab(bool forward) {
  const int next =
      model::nextValueColumn(grid_, grid_.selectedRow(), table_.pressedColumn(), forward ? 1 : -1);
  if (next == 0) return false;
  endEditing();
  table_.setFocus();
  table_.goToColumn(next);
  return true;
}

// Tab leaves the boxes of a duration at their ends. What was typed in the box of another cell counts.
bool CellTyping::onBoxTab(const QObject& box, bool forward) {
  if (&box == &boxes_.hours && forward) return false;
  if (&box == &boxes_.seconds && !forward) return false;
  if (&box == &boxes_.list && boxes_.list.lineEdit()->isModified()) {
    binder_.run([this] { editor_.Combo1.enter(); });
  }
  return onTab(forward);
}

}  // namespace desktop

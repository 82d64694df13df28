#include "desktop/editor_view.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <utility>

#include "desktop/cell_typing.h"
#include "forms/creer_cycle_words.h"
#include "model/grid_rows.h"
#include "model/time_value.h"
#include "platform/text.h"
#include "ui_creer_cycle.h"
#include "widgets/free_ground.h"
#include "widgets/look.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"
#include "widgets/within.h"

namespace desktop {

using widgets::dp;
using widgets::familyColour;
using widgets::FreeGround;
using widgets::GridModel;
using widgets::GridTable;
using widgets::MovablePanel;
using widgets::ProfileStep;
using widgets::SessionProfile;
using widgets::setLook;
using widgets::toQt;
using widgets::within;
using widgets::ZoneBand;

namespace {

using model::EffortFamily;

// By column: the button of the form whose tool tip explains the column's header.
constexpr std::array<const char*, 14> headButtons{
    "",           "",           "",           "MyButton14", "MyButton15", "MyButton16", "MyButton17",
    "MyButton18", "MyButton19", "MyButton20", "MyButton21", "MyButton22", "MyButton23", "MyButton25"};

}  // namespace

EditorView::EditorView(forms::CreerCycle& form, const model::SharedState& state, QWidget& page,
                       Binder& binder)
    : FormView(page), editor_(form), state_(state), ui_(std::make_unique<Ui::CreerCycle>()), binder_(binder) {
  ui_->setupUi(&page);
  // The list must not be their parent: for a screen reader, a list contains nothing but cells.
  for (auto* floating : std::initializer_list<QWidget*>{ui_->Navette, ui_->Combo1, ui_->Picture2,
                                                        ui_->Combo13, ui_->Picture1}) {
    floating->setParent(ui_->MyFrame2);
    floating->setProperty("over", QStringLiteral("list"));
  }
  ui_->Navette->setAttribute(Qt::WA_TransparentForMouseEvents);
  ui_->Picture1->setAttribute(Qt::WA_TransparentForMouseEvents);
  ui_->Navette->setAttribute(Qt::WA_StyledBackground);
  delete ui_->floats;
  ui_->floats = nullptr;
  ui_->calculatorPlace->raise();

  ui_->ListView1->showGrid(form.ListView1, [&binder](auto action) { binder.run(std::move(action)); });
  ui_->ListView1->setHeaderTip([this](int column) { return headerTip(column); });
  connect(ui_->ListView1, &GridTable::layoutMoved, this, &EditorView::placeFloating);
  form.ListView1.watchGrid([this](const platform::GridChange&) { refreshSoon(); });
  connect(ui_->ListView1->gridModel(), &GridModel::selectionMoved, ui_->editorProfile,
          &SessionProfile::selectRow);
  connect(ui_->editorProfile, &SessionProfile::rowPressed, this, [this, &binder](int row) {
    binder.run([this, row] {
      editor_.ListView1.select(row);
      editor_.ListView1.reveal(row);
    });
  });
  ui_->editorProfile->setClickable(true);

  help_ = new MovablePanel(*ui_->Picture3, *ui_->hintRow, page);

  followAll(form);
  follow(form);
  speak({});
}

EditorView::~EditorView() = default;

void EditorView::speak(const QString& text) {
  ui_->editorPrompt->setText(text.isEmpty() ? QString() : QStringLiteral("« ") + text + QStringLiteral(" »"));
  ui_->editorPrompt->setVisible(!text.isEmpty());
}

void EditorView::whenBound() {
  connect(ui_->ListView1, &GridTable::cellOpened, this, &EditorView::focusCellEditor);
  connect(ui_->ListView1, &GridTable::deletionAsked, this,
          [this](int row) { ui_->ListView1->pressRight(row, model::column::deleteMark); });
  for (QWidget* over : std::initializer_list<QWidget*>{ui_->Combo1, ui_->Combo2, ui_->Combo3, ui_->Combo4,
                                                       ui_->Combo13, ui_->Picture2, &page_}) {
    over->installEventFilter(this);
  }
  new CellTyping(editor_, *ui_->ListView1, {*ui_->Combo1, *ui_->Combo2, *ui_->Combo4}, binder_,
                 [this] { refresh(); });
  for (QComboBox* box : {ui_->Combo2, ui_->Combo3, ui_->Combo4}) {
    connect(box->lineEdit(), &QLineEdit::returnPressed, this, &EditorView::leaveCellEditor);
  }
  const auto* ground = new FreeGround(*ui_->Picture8, [this](const QWidget& widget) {
    return &widget == ui_->helpPlace || binder_.shows(widget);
  });
  connect(ground, &FreeGround::crossed, this, &EditorView::leaveHelp);
  ui_->Combo6->lineEdit()->setPlaceholderText(ui_->Combo6->accessibleName());
}

void EditorView::focusCellEditor() {
  refresh();
  for (QComboBox* box : {ui_->Combo13, ui_->Combo1, ui_->Combo2}) {
    if (!box->isVisible()) continue;
    box->setFocus(Qt::OtherFocusReason);
    if (box != ui_->Combo2) box->showPopup();
    return;
  }
}

void EditorView::leaveCellEditor() {
  binder_.run([this] {
    editor_.Command1.click();
    editor_.Combo13.visible = false;
  });
  ui_->ListView1->setFocus();
}

// Shows the list's duration in the boxes again, since leaving them would write the typed one to the list.
void EditorView::dropTypedDuration() {
  binder_.run([this] {
    forms::showInBoxes(forms::durationBoxes(editor_), forms::timeParts(editor_.Label7.caption));
  });
}

// Puts the calculator's picture back in place of a help text; false if no help text is shown.
bool EditorView::leaveHelp() {
  if (!editor_.Picture8.visible || editor_.Image11.visible) return false;
  binder_.run([this] { editor_.Picture8.hover(); });
  return true;
}

// The wheel over a cell editor scrolls the list, and Escape closes the editor, wherever the keyboard is.
bool EditorView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel && watched != &page_) {
    const auto* wheel = static_cast<const QWheelEvent*>(event);
    QWidget* list = ui_->ListView1->viewport();
    QWheelEvent onList(list->mapFromGlobal(wheel->globalPosition()), wheel->globalPosition(),
                       wheel->pixelDelta(), wheel->angleDelta(), wheel->buttons(), wheel->modifiers(),
                       wheel->phase(), wheel->inverted());
    QCoreApplication::sendEvent(list, &onList);
    return true;
  }
  const bool escape =
      event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  if (!escape) return FormView::eventFilter(watched, event);
  // Keys that no widget has used arrive at the page.
  if (!forms::cellOpen(editor_)) return watched == &page_ && leaveHelp();
  dropTypedDuration();
  leaveCellEditor();
  return true;
}

void EditorView::rescale() {
  ui_->ListView1->rescale();
  help_->fit();
  placeFloating();
}

void EditorView::draw() {
  ui_->ListView1->gridModel()->flush();
  ui_->profileCard->setVisible(!editor_.maximised);  // a list as large as the screen stands alone
  ui_->calculatorPlace->setVisible(editor_.Picture8.visible);
  refreshFilms();
  refreshProfile();
  refreshCalculator();
  setLook(*ui_->Label4, forms::badgeRefuses(editor_) ? QStringLiteral("badge") : QStringLiteral("tip"));
  placeFloating();
  // When a cell editor closes, the keyboard goes back to the list.
  if (std::exchange(editing_, forms::cellOpen(editor_)) && !editing_ && page_.hasFocus())
    ui_->ListView1->setFocus();
}

// The box in the header is narrow; its list is made as wide as the titles.
void EditorView::refreshFilms() {
  ui_->filmsBox->setVisible(!editor_.Combo6.lines().empty());
  QAbstractItemView& titles = *ui_->Combo6->view();
  titles.setMinimumWidth(titles.sizeHintForColumn(0) + dp(&titles, 24));
}

// The column over which the form put an editor; the list's current cell may be another by now.
int EditorView::columnUnder(const platform::Control& over) const {
  int column = editor_.ListView1.columnCount();
  while (column > 1 && editor_.ListView1.columnLeft(column) > over.left) --column;
  return column;
}

void EditorView::placeFloating() {
  const GridTable& table = *ui_->ListView1;
  const QSize room = table.viewport()->size();
  const QPoint corner = table.viewport()->mapTo(ui_->MyFrame2, QPoint(0, 0));
  const int row = editor_.ListView1.selectedRow();
  const QRect cell = table.cellRect(row, columnUnder(editor_.Combo1));
  const auto put = [&](QWidget& widget, const QRect& over, int least) {
    QSize size(std::max(over.width(), least), std::max(over.height(), widget.minimumSizeHint().height()));
    QRect place(QPoint(0, 0), size);
    place.moveCenter(over.center());
    widget.setGeometry(within(place, room).translated(corner));
    widget.raise();
  };
  // The cells have no place before the list is first shown.
  if (!cell.isNull()) put(*ui_->Combo1, cell, dp(&table, 150));
  const QRect duration = table.cellRect(row, model::column::duration);
  if (!duration.isNull()) put(*ui_->Picture2, duration, ui_->Picture2->sizeHint().width());
  const QRect method = table.cellRect(1, model::column::heartRate);
  if (!method.isNull()) put(*ui_->Combo13, method, dp(&table, 240));
  const QRect badge = table.cellRect(table.pressedRow(), columnUnder(editor_.Picture1));
  if (!badge.isNull()) put(*ui_->Picture1, badge, ui_->Picture1->sizeHint().width());
  const QRect pointed = table.cellRect(editor_.ListView1.pointedRow(), editor_.ListView1.pointedColumn());
  if (!pointed.isNull()) ui_->Navette->setGeometry(pointed.adjusted(1, 1, -1, -1).translated(corner));
}

void EditorView::refreshProfile() {
  const platform::Grid& grid = editor_.ListView1;
  std::vector<ProfileStep> steps;
  std::size_t ridden = 0;
  for (int row = 2; row <= grid.rowCount(); ++row) {
    const std::size_t place = model::isRidden(grid, row) ? ridden++ : state_.tooShort.size();
    if (!model::isSequence(grid, row)) continue;
    const platform::Instant excess =
        place < state_.tooShort.size() ? state_.tooShort[place] : platform::Instant{0};
    steps.push_back({grid.text(row, model::column::sequence),
                     model::parseSeconds(grid.text(row, model::column::duration)).value_or(0),
                     grid.text(row, model::column::heartRate), row,
                     static_cast<int>(std::chrono::ceil<std::chrono::seconds>(excess).count())});
  }
  ui_->editorProfile->setSteps(std::move(steps));
  ui_->editorProfile->selectRow(grid.selectedRow());
  ui_->totalTime->setText(toQt(grid.text(1, model::column::duration)));
}

void EditorView::refreshCalculator() {
  struct Row {
    QWidget* row;
    const platform::Control* control;
  };
  // The rows of the two heart rates always stay, with their help buttons.
  for (const Row& input : {Row{ui_->ageRow, &editor_.Combo7}, Row{ui_->sexRow, &editor_.Combo10}}) {
    input.row->setVisible(input.control->visible);
  }
  // In the order of state_.heartZones.
  const std::pair<ZoneBand*, EffortFamily> bands[] = {{ui_->band50, EffortFamily::Endurance},
                                                      {ui_->band52, EffortFamily::Recovery},
                                                      {ui_->band53, EffortFamily::Warmth},
                                                      {ui_->band54, EffortFamily::Strength},
                                                      {ui_->band55, EffortFamily::Speed}};
  const model::HeartZone* zone = state_.heartZones.data();
  for (const auto& [band, family] : bands)
    band->show(*zone++, familyColour(QGuiApplication::palette(), family));
}

QString EditorView::headerTip(int column) const {
  if (column < 3 || column >= static_cast<int>(headButtons.size())) return {};
  const auto& button = editor_.find(headButtons.at(static_cast<std::size_t>(column)));
  return toQt(static_cast<const platform::Control&>(button).toolTip.get());
}

}  // namespace desktop

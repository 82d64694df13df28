#include "desktop/windows.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>
#include <QWindow>
#include <algorithm>
#include <array>

#include "desktop/announce_view.h"
#include "desktop/editor_view.h"
#include "desktop/films_view.h"
#include "desktop/main_view.h"
#include "desktop/print_view.h"
#include "desktop/volume_view.h"
#include "forms/main_form_words.h"
#include "widgets/accessible_faces.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::applyTheme;
using widgets::installAccessibleFaces;
using widgets::ThemeMode;
using widgets::toQt;

namespace {

// Widgets by which the window can be dragged; a press on them does nothing else.
constexpr std::array<const char*, 22> handles{
    "header",  "Image7",  "MyFrame1", "MyFrame2",     "Picture1",        "Label4",       "Label5",  "Label6",
    "Label9",  "Label10", "Label11",  "Label13",      "Label15",         "Label16",      "Label17", "Label18",
    "Label20", "Label39", "ridePage", "editorHeader", "recordingHeader", "libraryHeader"};

}  // namespace

// A form, how its page is made, and what shows it once it is.
struct Windows::Room {
  platform::Form& form;
  std::function<std::unique_ptr<FormView>(QWidget& page)> view;
  std::function<void(QWidget& page)> finish;  // what a page of the main window has besides; may be empty
  QSize design{};                             // of its own window at the main window's design; else empty
  platform::Button* way = nullptr;            // for leaving the form; closing its own window presses it

  QWidget* page = nullptr;
  std::unique_ptr<FormView> drawn{};
  std::unique_ptr<FormWindow> window{};
};

// The pages of the main window come first, each before those that may lie over it.
std::vector<Windows::Room> Windows::plan() {
  forms::Screens& screens = program_.screens();
  const model::SharedState& state = program_.state();
  std::vector<Room> rooms;
  rooms.push_back({screens.main,
                   [&](QWidget& page) { return std::make_unique<MainView>(screens.main, state, page); },
                   [this](QWidget& page) {
                     shortcuts_.addToMain(page);
                     offerAppearance(page);
                   }});
  rooms.push_back(
      {screens.editor,
       [&](QWidget& page) { return std::make_unique<EditorView>(screens.editor, state, page, binder_); },
       [this](QWidget& page) { shortcuts_.addToEditor(page); }});
  rooms.push_back({screens.announcements,
                   [&](QWidget& page) {
                     return std::make_unique<AnnounceView>(screens.announcements, state, page, binder_,
                                                           saveTake_);
                   },
                   {}});
  rooms.push_back(
      {screens.volume,
       [&](QWidget& page) { return std::make_unique<VolumeView>(screens.volume, screens.main, page); },
       {},
       QSize(520, 500),
       &screens.volume.MyButton7});
  rooms.push_back({screens.print,
                   [&](QWidget& page) { return std::make_unique<PrintView>(screens.print, page); },
                   {},
                   QSize(980, 740),
                   &screens.print.Command34});
  rooms.push_back({screens.films,
                   [&](QWidget& page) { return std::make_unique<FilmsView>(screens.films, page); },
                   {},
                   QSize(860, 620),
                   &screens.films.MyButton9});
  return rooms;
}

Windows::Windows(app::Program& program, ThemeMode system, Appearance::Choice choice)
    : program_(program),
      appearance_(system, choice),
      window_(appearance_.mode()),
      binder_(program.loop()),
      shortcuts_(program, binder_, window_) {
  applyTheme(appearance_.mode());
  installAccessibleFaces();
  rooms_ = plan();
  for (Room& room : rooms_) follow(room);
  furnish(rooms_.front());
  connect(&window_, &MainWindow::rescaled, this, [this] {
    for (Room& room : rooms_) {
      if (room.drawn && !room.window) room.drawn->rescale();
    }
  });
  followListMode();
  window_.setWindowTitle(toQt(program.screens().main.caption.get()));
  connect(&appearance_, &Appearance::changed, this, &Windows::setTheme);
  // Queued, because the handler that opened the dialog has not returned yet when the dialog closes.
  connect(&window_, &MainWindow::unblocked, this, &Windows::addWaitingSessions, Qt::QueuedConnection);
}

Windows::~Windows() = default;

Windows::Room* Windows::roomOf(const platform::Form& form) {
  const auto found =
      std::find_if(rooms_.begin(), rooms_.end(), [&](const Room& room) { return &room.form == &form; });
  return found == rooms_.end() ? nullptr : &*found;
}

QWidget* Windows::page(const platform::Form& form) {
  Room* room = roomOf(form);
  if (room == nullptr) return nullptr;
  furnish(*room);
  return room->page;
}

QWidget* Windows::windowOf(const platform::Form& form) {
  QWidget* shown = page(form);
  return shown != nullptr ? shown->window() : nullptr;
}

void Windows::furnish(Room& room) {
  if (room.page != nullptr) return;
  room.design.isEmpty() ? furnishPage(room) : furnishWindow(room);
  room.drawn->speak(spoken_);
  room.drawn->refresh();
}

void Windows::furnishPage(Room& room) {
  room.page = new QWidget;
  room.drawn = room.view(*room.page);
  binder_.bind(room.form, *room.page);
  window_.addPage(room.page);
  room.drawn->whenBound();
  room.drawn->rescale();
  if (room.finish) room.finish(*room.page);
  makeDraggable(*room.page);
}

void Windows::furnishWindow(Room& room) {
  room.window = std::make_unique<FormWindow>(room.form, room.design, appearance_.mode(), window_);
  room.page = &room.window->page();
  room.drawn = room.view(*room.page);
  binder_.bind(room.form, *room.page);
  room.window->onClose([this, way = room.way] { binder_.run([way] { way->click(); }); });
  room.window->whenBound();
}

void Windows::follow(Room& room) {
  // A window of its own follows its form, once it is there.
  const auto show = [this, &room] {
    if (room.form.visible) furnish(room);
    if (!room.design.isEmpty()) return;
    room.form.visible ? window_.showPage(room.page) : showWhatIsLeft();
  };
  if (room.form.visible) show();
  room.form.watch([show](platform::Component&, platform::Prop prop) {
    if (prop == platform::Prop::Visible) show();
  });
}

// A form that closes uncovers the one below it.
void Windows::showWhatIsLeft() {
  const auto shown = std::find_if(rooms_.rbegin(), rooms_.rend(), [](const Room& room) {
    return room.design.isEmpty() && room.form.visible;
  });
  if (shown == rooms_.rend()) return;
  furnish(*shown);
  window_.showPage(shown->page);
}

// The editor's button for the whole list makes the window as large as the screen.
void Windows::followListMode() {
  forms::CreerCycle& editor = program_.screens().editor;
  editor.watch([this, &editor](platform::Component&, platform::Prop prop) {
    if (prop != platform::Prop::Value || editor.maximised == window_.isMaximized()) return;
    editor.maximised ? window_.showMaximized() : window_.showNormal();
  });
}

void Windows::offerAppearance(QWidget& mainPage) {
  auto* button = mainPage.findChild<QToolButton*>(QStringLiteral("themeButton"));
  auto* menu = new QMenu(button);
  appearance_.offerIn(*menu);
  button->setMenu(menu);
}

void Windows::setTheme(ThemeMode mode) {
  applyTheme(mode);
  window_.setTheme(mode);
  for (Room& room : rooms_) {
    if (room.window) room.window->setTheme(mode);
  }
  binder_.recolour();
  refresh();
}

void Windows::addSession(const std::string& path) {
  inbox_.push_back(path);
  binder_.run([this] { addWaitingSession(); });
}

// Each file is an action of its own, so that each is a step in the editor's history.
void Windows::addWaitingSessions() {
  for (std::size_t left = inbox_.size(); left > 0; --left) binder_.run([this] { addWaitingSession(); });
}

void Windows::addWaitingSession() {
  if (inbox_.empty() || QApplication::activeModalWidget() != nullptr) return;
  const std::string path = inbox_.front();
  inbox_.pop_front();
  forms::Screens& screens = program_.screens();
  const forms::MainForm& main = screens.main;
  if (main.visible && !forms::rideUnderWay(main, program_.state())) main.MyButton5.click();
  screens.editor.sessionHandedIn(path);
}

void Windows::makeDraggable(QWidget& page) {
  for (const char* name : handles) {
    if (auto* handle = page.findChild<QWidget*>(QLatin1String(name))) handle->installEventFilter(this);
  }
}

bool Windows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && !window_.isMaximized() && !window_.isFullScreen() &&
      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton && window_.windowHandle() != nullptr) {
    window_.windowHandle()->startSystemMove();
  }
  return QObject::eventFilter(watched, event);
}

void Windows::speak(const QString& text) {
  spoken_ = text;
  for (Room& room : rooms_) {
    if (room.drawn) room.drawn->speak(text);
  }
}

void Windows::refresh() {
  for (Room& room : rooms_) {
    if (room.drawn) room.drawn->refresh();
  }
}

void Windows::catchUp() {
  for (Room& room : rooms_) {
    if (room.drawn) room.drawn->catchUp();
  }
}

}  // namespace desktop

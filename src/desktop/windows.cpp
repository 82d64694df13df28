#include "desktop/windows.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>
#include <QWindow>
#include <array>

#include "desktop/shortcuts.h"
#include "forms/main_form_words.h"
#include "ui_aide_tq.h"
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

Windows::Windows(app::Program& program, ThemeMode system, Appearance::Choice choice)
    : program_(program),
      appearance_(system, choice),
      window_(appearance_.mode()),
      binder_(program.loop()),
      mainPage_(new QWidget),
      editorPage_(new QWidget),
      announcePage_(new QWidget),
      volumeWindow_(program.screens().volume, QSize(520, 500), appearance_.mode(), window_),
      printWindow_(program.screens().print, QSize(980, 740), appearance_.mode(), window_),
      filmsWindow_(program.screens().films, QSize(860, 620), appearance_.mode(), window_) {
  applyTheme(appearance_.mode());
  installAccessibleFaces();
  forms::Screens& screens = program.screens();
  mainView_ = std::make_unique<MainView>(screens.main, program.state(), *mainPage_);
  editorView_ = std::make_unique<EditorView>(screens.editor, program.state(), *editorPage_, binder_);
  announceView_ =
      std::make_unique<AnnounceView>(screens.announcements, program.state(), *announcePage_, binder_);
  const std::array<std::pair<platform::Form*, QWidget*>, 3> pages{
      {{&screens.main, mainPage_}, {&screens.editor, editorPage_}, {&screens.announcements, announcePage_}}};
  for (const auto& [form, page] : pages) {
    binder_.bind(*form, *page);
    window_.addPage(page);
    followForm(*form, *page);
  }
  editorView_->whenBound();
  connect(&window_, &MainWindow::rescaled, this, [this] {
    editorView_->rescale();
    announceView_->rescale();
  });
  screens.editor.watch([this, &form = screens.editor](platform::Component&, platform::Prop prop) {
    if (prop != platform::Prop::Value) return;
    editorView_->setListMode(form.maximised);
    if (form.maximised != window_.isMaximized())
      form.maximised ? window_.showMaximized() : window_.showNormal();
  });
  volumeView_ = std::make_unique<VolumeView>(screens.volume, screens.main, volumeWindow_.page());
  printView_ = std::make_unique<PrintView>(screens.print, printWindow_.page());
  Ui::AideTQ films;
  films.setupUi(&filmsWindow_.page());
  films.filmsTitle->setText(toQt(screens.films.caption.get()));
  openFormWindow(volumeWindow_, screens.volume, screens.volume.MyButton7);
  openFormWindow(printWindow_, screens.print, screens.print.Command34);
  openFormWindow(filmsWindow_, screens.films, screens.films.MyButton9);
  window_.setWindowTitle(toQt(screens.main.caption.get()));
  addShortcuts(program, binder_, window_, *mainPage_, *editorPage_);
  makeDraggable();
  offerAppearance();
  // Queued, because the handler that opened the dialog has not returned yet when the dialog closes.
  connect(&window_, &MainWindow::unblocked, this, &Windows::addWaitingSessions, Qt::QueuedConnection);
  refresh();
}

Windows::~Windows() = default;

QWidget* Windows::page(const platform::Form& form) const {
  const forms::Screens& screens = program_.screens();
  if (&form == &screens.main) return mainPage_;
  if (&form == &screens.announcements) return announcePage_;
  if (&form == &screens.volume) return &volumeWindow_.page();
  if (&form == &screens.print) return &printWindow_.page();
  if (&form == &screens.films) return &filmsWindow_.page();
  return &form == &screens.editor ? editorPage_ : nullptr;
}

QWidget* Windows::windowOf(const platform::Form& form) {
  QWidget* shown = page(form);
  return shown != nullptr ? shown->window() : nullptr;
}

// `way` is the form's own button for leaving it; closing the window presses it.
void Windows::openFormWindow(FormWindow& window, platform::Form& form, platform::Button& way) {
  binder_.bind(form, window.page());
  window.onClose([this, &way] { binder_.run([&way] { way.click(); }); });
  window.whenBound();
}

void Windows::followForm(platform::Form& form, QWidget& page) {
  if (form.visible) window_.showPage(&page);
  form.watch([this, &form, &page](platform::Component&, platform::Prop prop) {
    if (prop != platform::Prop::Visible) return;
    form.visible ? window_.showPage(&page) : showWhatIsLeft();
  });
}

// A form that closes uncovers the one below it.
void Windows::showWhatIsLeft() {
  forms::Screens& screens = program_.screens();
  for (const platform::Form* form :
       {static_cast<platform::Form*>(&screens.announcements), static_cast<platform::Form*>(&screens.editor),
        static_cast<platform::Form*>(&screens.main)}) {
    if (!form->visible) continue;
    window_.showPage(page(*form));
    return;
  }
}

void Windows::offerAppearance() {
  auto* button = mainPage_->findChild<QToolButton*>(QStringLiteral("themeButton"));
  auto* menu = new QMenu(button);
  appearance_.offerIn(*menu);
  button->setMenu(menu);
  connect(&appearance_, &Appearance::changed, this, &Windows::setTheme);
}

void Windows::setTheme(ThemeMode mode) {
  applyTheme(mode);
  window_.setTheme(mode);
  for (FormWindow* window : {&volumeWindow_, &printWindow_, &filmsWindow_}) window->setTheme(mode);
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

void Windows::makeDraggable() {
  for (QWidget* page : {mainPage_, editorPage_, announcePage_}) {
    for (const char* name : handles) {
      if (auto* handle = page->findChild<QWidget*>(QLatin1String(name))) handle->installEventFilter(this);
    }
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
  mainView_->speak(text);
  editorView_->speak(text);
}

void Windows::refresh() {
  mainView_->refresh();
  editorView_->refresh();
  announceView_->refresh();
  volumeView_->refresh();
  printView_->refresh();
}

}  // namespace desktop

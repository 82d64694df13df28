#include "desktop/windows.h"

#include <QMouseEvent>
#include <QShortcut>
#include <QWindow>
#include <array>

#include "desktop/qt_text.h"

namespace desktop {
namespace {

// What the window can be dragged by; a press there does nothing else.
constexpr std::array<const char*, 20> handles{"header",  "Image7",  "MyFrame1", "MyFrame2", "Picture1",
                                              "Label4",  "Label5",  "Label6",   "Label9",   "Label10",
                                              "Label11", "Label13", "Label15",  "Label16",  "Label17",
                                              "Label18", "Label20", "Label39",  "ridePage", "editorHeader"};

}  // namespace

Windows::Windows(app::Program& program, ThemeMode mode)
    : program_(program),
      window_(mode),
      binder_(program.loop()),
      mainPage_(new QWidget),
      editorPage_(new QWidget) {
  forms::Screens& screens = program.screens();
  mainView_ = std::make_unique<MainView>(screens.main, program.state(), *mainPage_);
  editorView_ = std::make_unique<EditorView>(screens.editor, *editorPage_, binder_);
  binder_.bind(screens.main, *mainPage_);
  binder_.bind(screens.editor, *editorPage_);
  window_.addPage(mainPage_);
  window_.addPage(editorPage_);
  connect(&window_, &MainWindow::rescaled, this, [this] { editorView_->rescale(); });
  followForm(screens.main, *mainPage_);
  followForm(screens.editor, *editorPage_);
  screens.editor.watch([this, &form = screens.editor](platform::Component&, platform::Prop prop) {
    if (prop != platform::Prop::Value) return;
    editorView_->setListMode(form.maximised);
    if (form.maximised != window_.isMaximized())
      form.maximised ? window_.showMaximized() : window_.showNormal();
  });
  window_.setWindowTitle(toQt(screens.main.caption.get()));
  addShortcuts();
  makeDraggable();
  refresh();
}

Windows::~Windows() = default;

QWidget* Windows::page(const platform::Form& form) const {
  if (&form == &program_.screens().main) return mainPage_;
  return &form == &program_.screens().editor ? editorPage_ : nullptr;
}

void Windows::followForm(platform::Form& form, QWidget& page) {
  if (form.visible) window_.showPage(&page);
  form.watch([this, &form, &page](platform::Component&, platform::Prop prop) {
    if (prop == platform::Prop::Visible && form.visible) window_.showPage(&page);
  });
}

void Windows::addShortcuts() {
  forms::MainForm& main = program_.screens().main;
  forms::CreerCycle& editor = program_.screens().editor;
  struct Key {
    QKeySequence keys;
    platform::Button& button;
    QWidget* page;
  };
  const std::array<Key, 5> keys{{{Qt::Key_F5, main.MyButton1, mainPage_},
                                 {Qt::CTRL | Qt::Key_P, main.Command7, mainPage_},
                                 {Qt::Key_F5, editor.MyButton5, editorPage_},
                                 {QKeySequence::Open, editor.Command5, editorPage_},
                                 {QKeySequence::Save, editor.Command6, editorPage_}}};
  for (const Key& key : keys) {
    auto* shortcut = new QShortcut(key.keys, key.page);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, &button = key.button] {
      binder_.run([&button] {
        if (platform::canBeSeen(button) && platform::isEnabled(button)) button.click();
      });
    });
  }
}

void Windows::makeDraggable() {
  for (QWidget* page : {mainPage_, editorPage_}) {
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
}

}  // namespace desktop

#include "desktop/qt_dialogs.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <array>
#include <utility>

#include "platform/text.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::fromQt;
using widgets::toQt;

namespace {

using platform::Answer;

struct AnswerButton {
  Answer answer;
  const char* text;
  QMessageBox::ButtonRole role;
};

constexpr std::array<AnswerButton, 4> buttons{{{Answer::Ok, "OK", QMessageBox::AcceptRole},
                                               {Answer::Yes, "Oui", QMessageBox::YesRole},
                                               {Answer::No, "Non", QMessageBox::NoRole},
                                               {Answer::Cancel, "Annuler", QMessageBox::RejectRole}}};

bool offers(platform::MessageButtons set, Answer answer) {
  switch (set) {
    case platform::MessageButtons::Ok:
      return answer == Answer::Ok;
    case platform::MessageButtons::OkCancel:
      return answer == Answer::Ok || answer == Answer::Cancel;
    case platform::MessageButtons::YesNoCancel:
      return answer != Answer::Ok;
  }
  return false;
}

QMessageBox::Icon iconOf(platform::MessageKind kind) {
  switch (kind) {
    case platform::MessageKind::Information:
      return QMessageBox::Information;
    case platform::MessageKind::Exclamation:
      return QMessageBox::Warning;
    case platform::MessageKind::Critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

// Turns a filter such as "words|*.a;*.b|words|*.c" into Qt's form.
QStringList nameFilters(const std::string& filter) {
  QStringList filters;
  const std::vector<std::string> parts = platform::split(filter, '|');
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    const QString patterns = toQt(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
    filters << toQt(parts[i]) + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return filters;
}

// Qt takes quotes for marks around several names, but the one name of a file to save may hold quotes itself.
QString typedPath(const QFileDialog& dialog) {
  const auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  const bool quoted = edit != nullptr && edit->text().contains(QLatin1Char('"'));
  return quoted ? dialog.directory().absoluteFilePath(edit->text()) : dialog.selectedFiles().value(0);
}

// Qt's own labels, which name their boxes to the eye alone.
void nameBoxes(const QFileDialog& dialog) {
  for (const auto& [label, box] :
       {std::pair{"lookInLabel", "lookInCombo"}, std::pair{"fileTypeLabel", "fileTypeCombo"}}) {
    auto* text = dialog.findChild<QLabel*>(QLatin1String(label));
    if (text != nullptr) text->setBuddy(dialog.findChild<QWidget*>(QLatin1String(box)));
  }
}

}  // namespace

Answer QtDialogs::message(const platform::Message& message) {
  QMessageBox box(parent_());
  box.setIcon(iconOf(message.kind));
  box.setWindowTitle(toQt(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(toQt(message.text));
  std::array<QAbstractButton*, buttons.size()> made{};
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    if (!offers(message.buttons, buttons.at(i).answer)) continue;
    QPushButton* button = box.addButton(QString::fromUtf8(buttons.at(i).text), buttons.at(i).role);
    made.at(i) = button;
    if (buttons.at(i).answer == Answer::Cancel) box.setEscapeButton(button);
    if (box.defaultButton() == nullptr) {
      box.setDefaultButton(button);
      button->setProperty("look", QStringLiteral("primary"));
    }
  }
  box.exec();
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    if (made.at(i) != nullptr && made.at(i) == box.clickedButton()) return buttons.at(i).answer;
  }
  return message.buttons == platform::MessageButtons::Ok ? Answer::Ok : Answer::Cancel;
}

std::vector<std::string> QtDialogs::chooseFiles(const platform::FileRequest& request) {
  QFileDialog dialog(parent_(), toQt(request.title), toQt(request.folder));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  const QStringList filters = nameFilters(request.filter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  switch (request.purpose) {
    case platform::FilePurpose::Open:
      dialog.setFileMode(QFileDialog::ExistingFile);
      break;
    case platform::FilePurpose::OpenSeveral:
      dialog.setFileMode(QFileDialog::ExistingFiles);
      break;
    case platform::FilePurpose::Folder:
      dialog.setFileMode(QFileDialog::Directory);
      dialog.setOption(QFileDialog::ShowDirsOnly);
      break;
    case platform::FilePurpose::Save:
      dialog.setAcceptMode(QFileDialog::AcceptSave);
      dialog.setFileMode(QFileDialog::AnyFile);
      dialog.setDefaultSuffix(toQt(platform::suffixOf(request.filter)));
      dialog.selectFile(toQt(request.proposedName));
      break;
  }
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Annuler"));
  nameBoxes(dialog);
  if (QWidget* parent = parent_()) dialog.resize(parent->size() * 3 / 4);
  if (dialog.exec() != QDialog::Accepted) return {};
  if (request.purpose == platform::FilePurpose::Save) {
    return {platform::withSuffix(fromQt(typedPath(dialog)), request.filter)};
  }
  std::vector<std::string> paths;
  for (const QString& path : dialog.selectedFiles()) paths.push_back(fromQt(path));
  return paths;
}

std::optional<int> QtDialogs::askNumber(const platform::NumberRequest& request) {
  QInputDialog dialog(parent_());
  dialog.setInputMode(QInputDialog::IntInput);
  dialog.setWindowTitle(toQt(request.title));
  dialog.setLabelText(toQt(request.text));
  dialog.setIntRange(request.least, request.most);
  dialog.setIntValue(request.proposed);
  dialog.setOkButtonText(QStringLiteral("OK"));
  dialog.setCancelButtonText(QStringLiteral("Annuler"));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.intValue();
}

}  // namespace desktop

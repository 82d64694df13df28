#include "desktop/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>

#include "widgets/accessible_faces.h"

namespace {

TEST(QtDialogs, SaveUnderANameThatEndsInTheSuffix) {
  widgets::installAccessibleFaces();
  desktop::QtDialogs dialogs([]() -> QWidget* { return nullptr; });
  for (const auto& [typed, saved] : {std::pair{"Sortie", "/tmp/Sortie.tq2"},
                                     {"Sortie 12.05", "/tmp/Sortie 12.05.tq2"},
                                     {"dit \"12.5\"", "/tmp/dit \"12.5\".tq2"},
                                     {"Sortie.tq2", "/tmp/Sortie.tq2"},
                                     {"SORTIE.TQ2", "/tmp/SORTIE.TQ2"}}) {
    QTimer::singleShot(0, [name = typed] {
      QWidget* dialog = QApplication::activeModalWidget();
      for (QComboBox* box : dialog->findChildren<QComboBox*>()) {
        EXPECT_NE(QAccessible::queryAccessibleInterface(box)->text(QAccessible::Name), QString());
      }
      dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QString::fromUtf8(name));
      QMetaObject::invokeMethod(dialog, "accept");
    });
    EXPECT_EQ(dialogs.chooseFiles({platform::FilePurpose::Save, "Enregistrer", "/tmp", "Séances|*.tq2", "x"}),
              std::vector<std::string>{saved});
  }
}

}  // namespace

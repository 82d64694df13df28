// The audit of the screens finds each kind of fault, and none on a faultless screen.
#include "stage/audit.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <functional>

#include "platform/controls.h"
#include "widgets/accessible_faces.h"
#include "widgets/chronometer.h"
#include "widgets/picture.h"
#include "widgets/theme.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Page : platform::Form {
  Page() : Form("Page", "Page") {
    picture.click.handle([] {});
  }
  platform::Image picture{*this, "picture"};
};

class AuditTest : public testing::Test {
 protected:
  AuditTest() {
    widgets::installAccessibleFaces();
    window_.resize(400, 200);
    window_.setStyleSheet(
        QStringLiteral("QWidget { background: #000000; color: #ffffff; font-size: 32px; }"));
    window_.show();
  }
  QPushButton& button(const QRect& place, const QString& text = QStringLiteral("Start")) {
    auto* made = new QPushButton(text, &window_);
    made->setObjectName(QStringLiteral("b%1").arg(++made_));
    made->setGeometry(place);
    made->show();
    return *made;
  }
  QStringList faults() {
    QCoreApplication::processEvents();
    return stage::faultsOf(page_, window_, window_.grab().toImage());
  }

  Page page_;
  QWidget window_;
  int made_ = 0;
};

TEST_F(AuditTest, EachFaultIsNamed) {
  const QRect place(20, 20, 200, 60);
  const std::pair<std::function<void()>, const char*> table[] = {
      {[&] { button(QRect(300, 20, 200, 60)); }, "Page.b1 is cut off by "},
      {[&] { button(QRect(20, 20, 40, 60)); }, "Page.b1 cuts its text: Start"},
      {[&] { button(place).setFocusPolicy(Qt::NoFocus); }, "Page.b1 is out of the keyboard's reach"},
      {[&] { button(place, QString()); }, "Page.b1 has no accessible name"},
      {[&] { button(place, QStringLiteral("?")); }, "Page.b1 has no accessible name"},
      {[&] { button(place).setStyleSheet(QStringLiteral("color: #444444;")); },
       "Page.b1 has a contrast of 2.2"},
      {[&] {
         auto* picture = new QLabel(QStringLiteral("?"), &window_);
         picture->setObjectName(QStringLiteral("picture"));
         picture->setGeometry(place);
         picture->show();
       },
       "Page.picture is out of the keyboard's reach"},
      {[&] {
         auto* box = new QComboBox(&window_);
         box->setObjectName(QStringLiteral("box"));
         box->setAccessibleName(QStringLiteral("Heures"));
         box->setEditable(true);
         box->setGeometry(place);
         box->show();
       },
       "Page.box has a field without a name"},
      {[&] {
         auto* drawn = new widgets::CountdownRing(&window_);
         drawn->setObjectName(QStringLiteral("ring"));
         drawn->setText(QStringLiteral("16"));
         drawn->setAccessibleName(drawn->text());
         drawn->setStyleSheet(QStringLiteral("font-size: 9px;"));
         drawn->setGeometry(place);
         drawn->show();
       },
       "Page.ring is not told once: 16 : 16"},
  };
  for (const auto& [make, wanted] : table) {
    make();
    EXPECT_THAT(faults(), ElementsAre(QString(wanted)));
    qDeleteAll(window_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
    made_ = 0;
  }
}

TEST_F(AuditTest, AControlThatLiesOverAnotherIsNamedButNotAPageThatCoversIt) {
  button(QRect(20, 20, 200, 60));
  EXPECT_THAT(faults(), IsEmpty());
  QPushButton& over = button(QRect(120, 20, 200, 60));
  EXPECT_THAT(faults(), ElementsAre(QStringLiteral("Page.b1 lies under b2")));
  over.setGeometry(0, 0, 400, 200);
  EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(AuditTest, ATextOverAPictureIsNamedUnlessThePictureIsADeclaredBackground) {
  QLabel label(QStringLiteral("Start"), &window_);
  label.setObjectName(QStringLiteral("label"));
  label.setGeometry(20, 20, 200, 60);
  widgets::Picture picture(&window_);
  picture.setObjectName(QStringLiteral("picture"));
  picture.setPicture(QStringLiteral("heart"));
  picture.setGeometry(80, 40, 24, 24);  // over the last letter alone
  for (QWidget* widget : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&picture)}) widget->show();
  const auto named = testing::Contains(QStringLiteral("Page.label has its text over a picture: picture"));
  EXPECT_THAT(faults(), named);
  label.raise();  // covers the picture, but is transparent
  EXPECT_THAT(faults(), named);
  picture.setGeometry(130, 40, 24, 24);  // beside the text, in the label's free part
  EXPECT_THAT(faults(), testing::Not(named));
  picture.setGeometry(80, 40, 24, 24);
  picture.setProperty("background", true);
  EXPECT_THAT(faults(), testing::Not(named));
}

}  // namespace

#include "desktop/single_instance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <memory>

namespace desktop {
namespace {

TEST(SingleInstance, ASecondProgramOfTheSameFolderWakesTheFirst) {
  const QTemporaryDir folder;
  const QTemporaryDir otherFolder;
  QStringList heard;
  auto first = std::make_unique<SingleInstance>(folder.path(), [&](const QString& text) { heard += text; });
  ASSERT_TRUE(first->first());

  const auto never = [](const QString&) { FAIL() << "only the first is woken"; };
  const SingleInstance second(folder.path() + "/.", never);
  const SingleInstance elsewhere(otherFolder.path(), never);
  EXPECT_FALSE(second.first());
  EXPECT_TRUE(elsewhere.first());
  const QString path = QStringLiteral("/séances/été.tq2");
  EXPECT_TRUE(second.wakeFirst());
  EXPECT_TRUE(second.wakeFirst(path));
  while (heard.size() < 2) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_EQ(heard, QStringList({QString(), path}));

  first.reset();
  EXPECT_FALSE(second.wakeFirst());
  EXPECT_TRUE(SingleInstance(folder.path(), never).first());
}

}  // namespace
}  // namespace desktop

#include "shell/tour.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>

#include "window_test.h"

namespace velk {
namespace {

TEST(Tour, ends_with_1_when_no_phone_is_reached_and_keeps_the_pictures_up_to_there) {
    const QTemporaryDir folder;
    const std::string pictures = folder.filePath("made/on/the/way").toStdString();
    Open_Window open;
    testing::internal::CaptureStderr();
    Tour tour(*open.document, *open.window, pictures);
    QApplication::exec();
    const std::string reason = testing::internal::GetCapturedStderr();
    EXPECT_EQ(tour.status(), 1);
    EXPECT_NE(reason.find("no phone was reached"), std::string::npos) << reason;
    const QImage picture(QString::fromStdString(pictures + "/01-connecting.png"));
    EXPECT_EQ(picture.size(), QSize(1280, 800));
}

}  // namespace
}  // namespace velk

#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "desktop/box_view.h"
#include "desktop/button_bindings.h"
#include "desktop/desktop_fixture.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

/// A button that takes files, and what it got.
class FileDropsOnAButton : public DesktopFixture {
protected:
    FileDropsOnAButton() {
        services.paths.to_station = [](const std::string& path) {
            if (path.find("hors") != std::string::npos)
                throw Failure{FailureNumber::path_not_found, path};
            return "C:" + path;
        };
        button.on_files_dropped = [this](const auto& paths) { dropped = paths; };
        binding = std::make_unique<ButtonBinding>(button, *new StudioButton{&panel}, services);
        binding->take_drops_on(panel);
        settle();
    }
    /// Drops them on a widget; whether it takes them.
    bool drop(QWidget& widget, const QList<QUrl>& urls, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter{{2, 2}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, keys};
        QCoreApplication::sendEvent(&widget, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event{{2, 2}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, keys};
        QCoreApplication::sendEvent(&widget, &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction);
        settle();
        return true;
    }
    [[nodiscard]] static QUrl file(const QString& path) { return QUrl::fromLocalFile(path); }

    QWidget panel;
    Button button{window, "b"};
    std::unique_ptr<ButtonBinding> binding;
    std::vector<std::string> dropped;
};

using Paths = std::vector<std::string>;

} // namespace

TEST_F(FileDropsOnAButton, AreHandedOverInTheStationsForm) {
    EXPECT_TRUE(drop(*binding->widget(), {file("/m/été.mp3"), file("/m/b.mp3")}));
    EXPECT_EQ(dropped, (Paths{"C:/m/été.mp3", "C:/m/b.mp3"}));
    EXPECT_EQ(events, 1);
}

TEST_F(FileDropsOnAButton, StayWhereTheyAreWhenTheyAreDroppedToBeMoved) {
    EXPECT_TRUE(drop(panel, {file("/m/a.mp3")}, Qt::ShiftModifier));
    EXPECT_EQ(dropped, Paths{"C:/m/a.mp3"});
}

TEST_F(FileDropsOnAButton, ArePossibleOnThePanelAroundIt) {
    EXPECT_TRUE(drop(panel, {file("/m/a.mp3")}));
    EXPECT_EQ(dropped, Paths{"C:/m/a.mp3"});
}

TEST_F(FileDropsOnAButton, AreNotHandedOverWhileTheyPassOverIt) {
    QMimeData data;
    data.setUrls({file("/m/a.mp3")});
    QDragEnterEvent enter{{2, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
    QDragMoveEvent move{{4, 4}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
    for (QDropEvent* event : std::initializer_list<QDropEvent*>{&enter, &move}) {
        QCoreApplication::sendEvent(&panel, event);
        EXPECT_TRUE(event->isAccepted());
    }
    settle();
    EXPECT_EQ(dropped, Paths{});
    EXPECT_EQ(events, 0);
}

TEST_F(FileDropsOnAButton, AreHandedOverOnceTheOtherProgramHasGone) {
    QMimeData data;
    data.setUrls({file("/m/a.mp3")});
    QDragEnterEvent enter{{2, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
    QCoreApplication::sendEvent(&panel, &enter);
    QDropEvent event{{2, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
    QCoreApplication::sendEvent(&panel, &event);
    EXPECT_EQ(dropped, Paths{});
    settle();
    EXPECT_EQ(dropped, Paths{"C:/m/a.mp3"});
}

TEST_F(FileDropsOnAButton, OfAnAddressAreNotTaken) {
    EXPECT_FALSE(drop(panel, {QUrl{"https://sonarelle.example/a.mp3"}}));
}

TEST_F(FileDropsOnAButton, AreNotTakenWhileItCantBeReached) {
    button.enabled = false;
    settle();
    EXPECT_FALSE(drop(panel, {file("/m/a.mp3")}));
}

TEST_F(FileDropsOnAButton, OutsideAllDrivesAreRefusedByName) {
    QString told;
    QTimer::singleShot(0, &panel, [&] {
        QTimer::singleShot(50, &panel, [&] {
            auto* box = dynamic_cast<BoxView*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            told = box->text();
            box->accept();
        });
    });
    EXPECT_TRUE(drop(panel, {file("/m/a.mp3"), file("/hors/b.mp3")}));
    EXPECT_TRUE(told.contains("/hors/b.mp3")) << told.toStdString();
    EXPECT_TRUE(dropped.empty());
}

TEST_F(FileDropsOnAButton, AreNotTakenWhereTheStationWantsNone) {
    Button other{window, "autre"};
    StudioButton widget;
    const ButtonBinding plain{other, widget, services};
    settle();
    EXPECT_FALSE(drop(widget, {file("/m/a.mp3")}));
}

} // namespace sonarelle

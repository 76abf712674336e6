#include <QTemporaryDir>
#include <QTest>

#include "desktop/button_bindings.h"
#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

/// Pictures of one colour each, in a folder of their own.
class Faces : public DesktopFixture {
protected:
    [[nodiscard]] std::string put(const QString& name, const QColor& colour) {
        QPixmap picture{40, 40};
        picture.fill(colour);
        const QString path = folder_.filePath(name);
        EXPECT_TRUE(picture.save(path));
        return path.toStdString();
    }
    [[nodiscard]] static QColor colour(const QPixmap& picture) { return picture.toImage().pixelColor(20, 20); }

private:
    QTemporaryDir folder_;
};

/// A button that is its picture, as the operator sees it.
class ShownFaces : public Faces {
protected:
    ShownFaces() {
        image.picture = put("b.png", Qt::red);
        put_variants();
        widget.set_look(ButtonLook::picture);
        widget.resize(40, 40);
        settle();
    }
    void put_variants() {
        static_cast<void>(put("b_survol.png", Qt::green));
        static_cast<void>(put("b_enfonce.png", Qt::blue));
    }
    [[nodiscard]] QColor seen() { return colour(widget.grab()); }

    Image image{window, "i"};
    QWidget hidden; // no pointer comes over it
    StudioButton widget{&hidden};
    ImageBinding binding{image, widget, services};
};

} // namespace

TEST_F(ShownFaces, RestWhileThePointerIsElsewhere) {
    EXPECT_EQ(seen(), QColor{Qt::red});
}

TEST_F(ShownFaces, HoverUnderThePointer) {
    widget.setAttribute(Qt::WA_UnderMouse);
    EXPECT_EQ(seen(), QColor{Qt::green});
}

TEST_F(ShownFaces, PressedWhileItIsDown) {
    widget.setAttribute(Qt::WA_UnderMouse);
    widget.setDown(true);
    EXPECT_EQ(seen(), QColor{Qt::blue});
}

TEST_F(ShownFaces, RestWhileItCantBeReached) {
    image.enabled = false;
    widget.setAttribute(Qt::WA_UnderMouse);
    settle();
    EXPECT_GT(seen().red(), seen().green());
}

TEST_F(Faces, PictureAloneIsAllThreeFaces) {
    const PictureFaces faces = pictures.faces(put("seul.png", Qt::red));
    EXPECT_EQ(colour(faces.rest), QColor{Qt::red});
    EXPECT_EQ(colour(faces.over), QColor{Qt::red});
    EXPECT_EQ(colour(faces.down), QColor{Qt::red});
}

TEST_F(Faces, NameOfAPressedFaceHasARestBesideIt) {
    const std::string name = put("b1.png", Qt::blue);
    static_cast<void>(put("b1_repos.png", Qt::red));
    static_cast<void>(put("b1_survol.png", Qt::green));
    const PictureFaces faces = pictures.faces(name);
    EXPECT_EQ(colour(faces.rest), QColor{Qt::red});
    EXPECT_EQ(colour(faces.over), QColor{Qt::green});
    EXPECT_EQ(colour(faces.down), QColor{Qt::blue});
}

TEST_F(Faces, MissingPictureHasNone) {
    EXPECT_TRUE(pictures.faces("absent.png").rest.isNull());
}

TEST_F(Faces, PictureThatComesLaterIsFound) {
    const std::string name = put("tard.png", Qt::red);
    ASSERT_TRUE(QFile::remove(QString::fromStdString(name)));
    EXPECT_TRUE(pictures.faces(name).rest.isNull());
    EXPECT_EQ(put("tard.png", Qt::red), name);
    EXPECT_FALSE(pictures.faces(name).rest.isNull());
}

TEST_F(Faces, PictureOnceSeenOutlivesItsFile) {
    const std::string name = put("parti.png", Qt::red);
    static_cast<void>(pictures.faces(name));
    ASSERT_TRUE(QFile::remove(QString::fromStdString(name)));
    EXPECT_EQ(colour(pictures.faces(name).rest), QColor{Qt::red});
}

} // namespace sonarelle

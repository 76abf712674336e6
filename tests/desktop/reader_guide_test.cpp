// The operator's guide in a window of the desk, by the keyboard.
#include "desktop/reader_guide.h"

#include <QScrollBar>
#include <set>

#include "desktop/input_box.h"
#include "desktop/message_box.h"
#include "desktop/pixels.h"
#include "desktop/reader_fixture.h"
#include "desktop/studio_button.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

class Guide : public ReaderFixture {
protected:
    /// The names of all pictures, or the targets of all links, of the guide.
    [[nodiscard]] static std::set<QString> named(const std::function<QString(const QTextCharFormat&)>& name) {
        std::set<QString> names;
        for (QTextBlock block = page().document()->begin(); block.isValid(); block = block.next())
            for (auto at = block.begin(); !at.atEnd(); ++at)
                names.insert(name(at.fragment().charFormat()));
        names.erase(QString{});
        return names;
    }
    void look_for(const QString& words) {
        press(Qt::Key_F, Qt::ControlModifier);
        type(words);
    }
    [[nodiscard]] static QString found() { return page().textCursor().selectedText(); }
    [[nodiscard]] static int place() { return page().textCursor().selectionStart(); }
    [[nodiscard]] static QString page_on_view() { return contents().currentItem()->text().trimmed(); }
};

} // namespace

TEST_F(Guide, ComesByF1AtTheDesk) {
    press(Qt::Key_F1);
    ASSERT_NE(reader("guide"), nullptr);
    EXPECT_EQ(QApplication::activeWindow(), reader("guide"));
    EXPECT_EQ(page_on_view(), "Le bureau");
    EXPECT_EQ(first_on_view(), "Le bureau");
    EXPECT_TRUE(machine.shell.started.empty());
}

TEST_F(Guide, ComesAtThePageOfTheWindowThatAsked) {
    for (Window* asker : station.windows())
        if (asker != &station.splash) {
            press_help_in(*asker);
            EXPECT_FALSE(guide_heading(asker->name()).isEmpty()) << asker->name();
            EXPECT_EQ(page_on_view(), guide_heading(asker->name()));
            EXPECT_TRUE(page().toPlainText().contains("\n" + page_on_view() + "\n"));
        }
}

TEST_F(Guide, ContentsGoUpAndDownAlone) {
    press(Qt::Key_F1);
    reader("guide")->resize(reader("guide")->minimumSize());
    settle();
    EXPECT_TRUE(contents().verticalScrollBar()->isVisible());
    EXPECT_FALSE(contents().horizontalScrollBar()->isVisible());
}

TEST_F(Guide, ComesAtItsBeginningForAWindowThatItDoesntTellOf) {
    shell.show_guide("Chargement");
    EXPECT_EQ(page_on_view(), "Guide de l'opérateur");
}

TEST_F(Guide, ThatIsMissingIsAFault) {
    DesktopShell bare{machine.shell, machine.disk, "/nulle/part/guide.md"};
    try {
        bare.show_guide("Antenne_FM");
        ADD_FAILURE();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::file_not_found);
    }
}

TEST_F(Guide, GivesTheKeyboardBackToTheWindowThatAsked) {
    press_help_in(station.list_window);
    press(Qt::Key_Escape);
    EXPECT_FALSE(reader("guide")->isVisible());
    EXPECT_EQ(QApplication::activeWindow(), desktop->widget_of(station.list_window));
}

TEST_F(Guide, LeavesTheHeaderOfTheDeskOnView) {
    const QWidget& desk = *desktop->widget_of(station.main_window);
    press(Qt::Key_F1);
    EXPECT_GE(reader("guide")->frameGeometry().top(), desk.geometry().top() + 150);
    EXPECT_LE(reader("guide")->frameGeometry().bottom(), desk.screen()->availableGeometry().bottom());
}

TEST_F(Guide, IsReadBesideAWindowThatHoldsAllOthers) {
    QWidget& properties = *desktop->widget_of(station.properties_window);
    properties.setWindowModality(Qt::ApplicationModal);
    press(Qt::Key_F1);
    press_help_in(station.properties_window);
    EXPECT_EQ(reader("guide")->windowHandle()->transientParent(), properties.windowHandle());
    look_for("Sauvegarder");
    EXPECT_EQ(found(), "Sauvegarder");
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activeWindow(), &properties);
}

TEST_F(Guide, ComesFromABoxAtThePageOfTheWindowBelow) {
    QWidget& list = *desktop->widget_of(station.list_window);
    MessageBoxView question{{.text = "Continuer ?", .title = "Sonarelle", .buttons = Buttons::yes_no}, &list};
    question.open();
    take_keyboard(question);
    press(Qt::Key_F1);
    ASSERT_NE(reader("guide"), nullptr);
    EXPECT_EQ(page_on_view(), guide_heading("Liste_son"));
    EXPECT_EQ(reader("guide")->windowHandle()->transientParent(), question.windowHandle()) << "which would hold it";
    press(Qt::Key_Escape);
    EXPECT_TRUE(question.isVisible());
    EXPECT_EQ(QApplication::activeWindow(), &question);
}

TEST_F(Guide, ComesFromAFieldInABoxOverABox) {
    MessageBoxView below{{.text = "Continuer ?", .title = "Sonarelle"}, desktop->widget_of(station.properties_window)};
    below.open();
    InputBoxView asking{{"Entrez la nouvelle valeur", "Sonarelle", "0.10"}, "0.10", &below};
    asking.open();
    take_keyboard(asking);
    press(Qt::Key_F1);
    ASSERT_NE(reader("guide"), nullptr);
    EXPECT_EQ(page_on_view(), guide_heading("Propriete"));
}

TEST_F(Guide, OutlivesTheBoxThatAsked) {
    {
        MessageBoxView question{{.text = "Continuer ?", .title = "Sonarelle"}, desktop->widget_of(station.main_window)};
        question.open();
        take_keyboard(question);
        press(Qt::Key_F1);
    }
    settle();
    EXPECT_TRUE(reader("guide")->isVisible());
    take_keyboard(*desktop->widget_of(station.main_window));
    press_help_in(station.list_window);
    EXPECT_EQ(page_on_view(), guide_heading("Liste_son"));
    EXPECT_EQ(QApplication::activeWindow(), reader("guide"));
}

TEST_F(Guide, HasItsPicturesWithinItsColumn) {
    press(Qt::Key_F1);
    const auto shown = named([](const QTextCharFormat& format) { return format.toImageFormat().name(); });
    EXPECT_FALSE(shown.empty());
    for (const QString& name : shown) {
        const auto picture = page().document()->resource(QTextDocument::ImageResource, name).value<QImage>();
        EXPECT_FALSE(picture.isNull()) << name.toStdString();
        EXPECT_LE(picture.deviceIndependentSize().width(), page().viewport()->width()) << name.toStdString();
    }
}

TEST_F(Guide, HasNoLinkThatLeadsNowhere) {
    press(Qt::Key_F1);
    const auto links = named([](const QTextCharFormat& format) { return format.anchorHref(); });
    EXPECT_FALSE(links.empty());
    for (const QString& link : links) {
        emit page().anchorClicked(link);
        EXPECT_FALSE(said("guide").contains("hors du guide")) << link.toStdString();
    }
}

TEST_F(Guide, SaysThatALinkLeadsOutOfIt) {
    press(Qt::Key_F1);
    emit page().anchorClicked(QUrl{"http://exemple.fr"});
    EXPECT_EQ(said("guide"), "Ce lien mène hors du guide : http://exemple.fr");
}

TEST_F(Guide, FollowsALinkAndGoesBackByTheKeyboard) {
    press_help_in(station.list_window);
    press(Qt::Key_Tab);
    const int before = page().verticalScrollBar()->value();
    press(Qt::Key_Return);
    EXPECT_EQ(page_on_view(), "Les propriétés d'un titre");
    EXPECT_EQ(first_on_view(), "Les propriétés d'un titre");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page_on_view(), "La fenêtre liste");
    EXPECT_EQ(page().verticalScrollBar()->value(), before);
}

TEST_F(Guide, FollowsItsContentsAndGoesBack) {
    press(Qt::Key_F1);
    const int before = page().verticalScrollBar()->value();
    contents().setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(first_on_view(), page_on_view());
    EXPECT_NE(page().verticalScrollBar()->value(), before);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page().verticalScrollBar()->value(), before);
}

TEST_F(Guide, GivesTheKeyboardFromItsContentsToTheText) {
    press(Qt::Key_F1);
    contents().setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(page().hasFocus());
}

TEST_F(Guide, FindsWordsWhileTheyAreTyped) {
    press(Qt::Key_F1);
    look_for("ZAPP");
    EXPECT_EQ(found().toLower(), "zapp");
    EXPECT_EQ(answer("guide"), "");
    const int first = place();
    type("er");
    EXPECT_EQ(place(), first);
}

TEST_F(Guide, FindsTheNextPlaceByReturnAndThePreviousByShiftReturn) {
    press(Qt::Key_F1);
    look_for("journal");
    const int first = place();
    press(Qt::Key_Return);
    const int second = place();
    EXPECT_GT(second, first);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(place(), first);
}

TEST_F(Guide, LooksOnFromTheOtherEndAndSaysSo) {
    press(Qt::Key_F1);
    look_for("Guide de l'opérateur");
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(answer("guide"), "repris à la fin");
    press(Qt::Key_Return);
    EXPECT_EQ(answer("guide"), "repris au début");
    EXPECT_EQ(found(), "Guide de l'opérateur");
}

TEST_F(Guide, SaysThatWordsAreNotInIt) {
    press(Qt::Key_F1);
    look_for("gramophone");
    EXPECT_EQ(answer("guide"), "introuvable");
    const int before = page().verticalScrollBar()->value();
    press(Qt::Key_Return);
    EXPECT_EQ(answer("guide"), "introuvable");
    EXPECT_EQ(page().verticalScrollBar()->value(), before);
}

TEST_F(Guide, HasButtonsForTheSearchThatReturnPresses) {
    press(Qt::Key_F1);
    look_for("journal");
    const int first = place();
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    ASSERT_EQ(reader("guide")->findChildren<StudioButton*>()[1], QApplication::focusWidget());
    press(Qt::Key_Return);
    EXPECT_GT(place(), first);
}

TEST_F(Guide, IsReadable) {
    press(Qt::Key_F1);
    contents().setCurrentRow(1); // with lines of code
    settle();
    for (QWidget* part : {static_cast<QWidget*>(page().viewport()), static_cast<QWidget*>(contents().viewport()),
                          static_cast<QWidget*>(&this->part<QLabel>("guide", "etat"))})
        EXPECT_GE(contrast_in(seen_in_window(*part)), readable);
    for (const QColor& ink : {studio::text, studio::focus})
        for (const QColor& ground : {studio::card, studio::well})
            EXPECT_GE(contrast(ink, ground), readable);
    EXPECT_EQ(ground_in(seen(*page().viewport())), studio::card);
}

} // namespace sonarelle

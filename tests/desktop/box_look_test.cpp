// What the station's boxes look like, and where they come up, at the usual size of text and at a large one.
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTimer>

#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_file_dialog.h"
#include "desktop/fitted_text.h"
#include "desktop/input_box.h"
#include "desktop/message_box.h"
#include "desktop/pixels.h"
#include "desktop/remaining_time.h"
#include "desktop/station_views.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr const char* long_path = "C:\\Archives de la station\\Enregistrements des concerts du dimanche soir\\"
                                  "Année deux mille vingt-cinq\\Le quatuor et l'orchestre des rives.mp3";

MessageBox overwriting(const std::string& path = "C:\\Listes\\matin.dfm") {
    return {.text = "Attention le fichier : " + path + " existe \n va ètre écrasé !\nContinuer ?",
            .title = "Sonarelle",
            .buttons = Buttons::yes_no,
            .icon = Icon::stop,
            .default_button = 2};
}

MessageBox leaving() {
    return {.text = "Confirmer la fermeture de Sonarelle",
            .title = "Sonarelle",
            .buttons = Buttons::yes_no,
            .icon = Icon::question,
            .default_button = 2};
}

class BoxOverTheDesk : public StationViews, public testing::WithParamInterface<int> {
protected:
    BoxOverTheDesk() {
        QFont font = QApplication::font();
        font.setPixelSize(GetParam());
        QApplication::setFont(font);
        show_windows();
        main_view().resize(1000, 600);
        main_view().move(-100, 30); // in the middle of a screen of 800
        settle();
    }

    template <typename Box>
    Box& shown(Box& box) {
        box.show();
        settle();
        return box;
    }
    [[nodiscard]] static QRect area(const QWidget& part) { return {part.mapToGlobal(QPoint{}), part.size()}; }
    /// Each text has the room that it takes, and stands inside the box.
    static void expect_whole(BoxView& box) {
        for (const auto* label : box.findChildren<QLabel*>()) {
            if (label->text().isEmpty())
                continue;
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
            EXPECT_TRUE(area(box).contains(area(*label))) << label->text().toStdString();
            const QString words = label->text();
            for (const QString& word : words.split(QRegularExpression{"[ \n]"}))
                EXPECT_LE(label->fontMetrics().horizontalAdvance(word), label->width()) << word.toStdString();
        }
        for (const auto* button : box.findChildren<QAbstractButton*>()) {
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
            EXPECT_TRUE(area(box).contains(area(*button))) << button->text().toStdString();
        }
    }
};

} // namespace

TEST_P(BoxOverTheDesk, FileDialogLeavesTheHeaderFree) {
    const auto same = [](const std::string& path) { return path; };
    const PathForms paths{same, same};
    DesktopFileDialog dialog{paths, &main_view()};
    dialog.show();
    settle();
    EXPECT_FALSE(area(dialog).intersects(header_of(main_view())));
    EXPECT_TRUE(dialog.screen()->availableGeometry().contains(area(dialog)));
}

TEST_P(BoxOverTheDesk, ComesUpBelowTheHeaderInTheMiddle) {
    MessageBoxView view{leaving(), &main_view()};
    const QRect box = area(shown(view));
    const QRect header = area(*main_view().findChild<QWidget*>("air_header"));
    EXPECT_GT(box.top(), header.bottom());
    EXPECT_NEAR(box.center().x(), area(main_view()).center().x(), 1);
    EXPECT_TRUE(view.screen()->availableGeometry().contains(box));
}

TEST_P(BoxOverTheDesk, LeavesTheHeaderFreeOverASmallWindow) {
    station.progress_window.begin(10, "Traitement en cours");
    settle();
    QWidget& progress = *desktop->widget_of(station.progress_window);
    const QRect header = area(*main_view().findChild<QWidget*>("air_header"));
    progress.move(200, header.top());
    settle();
    MessageBoxView box{leaving(), &progress};
    EXPECT_FALSE(area(shown(box)).intersects(header));
}

TEST_P(BoxOverTheDesk, ComesUpWhollyOnTheScreenWhereverTheDeskIs) {
    const QRect screen = main_view().screen()->availableGeometry();
    for (const QPoint place : {QPoint{-1100, -500}, QPoint{screen.right() - 40, screen.bottom() - 40}}) {
        main_view().move(place);
        settle();
        MessageBoxView box{leaving(), &main_view()};
        EXPECT_TRUE(screen.contains(area(shown(box))));
    }
}

TEST_P(BoxOverTheDesk, ComesUpInTheMiddleOfTheScreenWithoutAWindow) {
    MessageBoxView box{leaving(), nullptr};
    EXPECT_NEAR(area(shown(box)).center().x(), box.screen()->availableGeometry().center().x(), 1);
}

TEST_P(BoxOverTheDesk, IsAsWideAsItsTextIsLarge) {
    MessageBoxView box{leaving(), &main_view()};
    EXPECT_EQ(shown(box).width(), std::min(scaled(512), box.screen()->availableGeometry().width()));
}

TEST_P(BoxOverTheDesk, HasNothingToReduceOrEnlargeIt) {
    const MessageBoxView box{leaving(), &main_view()};
    EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_P(BoxOverTheDesk, ShowsEveryTextWhole) {
    for (const MessageBox& asked : {leaving(), overwriting(), overwriting(long_path),
                                    MessageBox{.text = "Un mot " + std::string(200, 'x'), .title = "Sonarelle"}}) {
        MessageBoxView box{asked, &main_view()};
        expect_whole(shown(box));
    }
    InputBoxView field{{"Démarrer la lecture a :\nEntrez la nouvelle valeur pour cette session", "Lecture a :", "0.10"},
                       "0.10",
                       &main_view()};
    expect_whole(shown(field));
}

TEST_P(BoxOverTheDesk, CutsALongPathInItsMiddleAndTellsItWhole) {
    MessageBoxView box{overwriting(long_path), &main_view()};
    shown(box);
    QString words;
    QString tips;
    for (const auto* label : box.findChildren<QLabel*>()) {
        words += without_joints(label->text());
        tips += label->toolTip();
    }
    EXPECT_TRUE(words.contains(u'…'));
    EXPECT_TRUE(words.contains("C:\\Archives")) << words.toStdString();
    EXPECT_TRUE(words.contains("rives.mp3")) << words.toStdString();
    EXPECT_TRUE(tips.contains(QString::fromUtf8(long_path)));
    EXPECT_TRUE(box.text().contains(QString::fromUtf8(long_path)));
}

TEST_P(BoxOverTheDesk, LetsATextThatNoScreenHoldsBeScrolled) {
    std::string lines = "Éléments supprimés";
    for (int i = 0; i < 100; ++i)
        lines += "\nC:\\Musique\\titre " + std::to_string(i) + ".mp3";
    MessageBoxView box{{.text = lines, .title = "Sonarelle"}, &main_view()};
    EXPECT_TRUE(box.screen()->availableGeometry().contains(area(shown(box))));
    EXPECT_TRUE(area(box).contains(area(*box.button(Answer::ok))));
}

TEST_P(BoxOverTheDesk, ReadsWell) {
    MessageBoxView box{overwriting(), &main_view()};
    shown(box);
    for (auto* label : box.findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) {
            EXPECT_GE(contrast_in(seen_in_window(*label)), readable) << label->text().toStdString();
        }
    }
    for (const Answer answer : {Answer::yes, Answer::no}) {
        box.button(answer)->clearFocus(); // the bright ring would be taken for the ink
        EXPECT_GE(contrast_in(seen_in_window(*box.button(answer))), readable);
    }
    const QImage whole = seen(box);
    EXPECT_GE(contrast_in(whole.copy(8, 4, whole.width() - 16, scaled(32) - 8)), readable);
}

TEST_P(BoxOverTheDesk, ShowsThatItIsATrouble) {
    MessageBoxView trouble{overwriting(), &main_view()};
    MessageBoxView question{leaving(), &main_view()};
    EXPECT_GT(count_of(seen(shown(trouble)), studio::trouble_fill), 400);
    EXPECT_EQ(count_of(seen(shown(question)), studio::trouble_fill), 0);
}

TEST_P(BoxOverTheDesk, FieldIsAsWideAsTheWords) {
    InputBoxView box{{"Nom de votre Radio", "Saisie", ""}, "Sonarelle", &main_view()};
    shown(box);
    EXPECT_GE(box.field().width(), box.width() / 2);
    EXPECT_GE(box.field().height(), scaled(32));
    EXPECT_GE(contrast_in(seen_in_window(box.field())), readable);
}

TEST_P(BoxOverTheDesk, LetsTheHeaderGoOnWhileItWaits) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    auto& status = part<StationLabel>(main_view(), station.main_window.chain_status.name());
    bool went_on = false;
    QTimer::singleShot(0, [&] {
        station.main_window.chain_status.caption = "Play 1 : liste mix a 69";
        went_on = becomes([&] { return status.text() == "Play 1 : liste mix a 69"; });
        QApplication::activeModalWidget()->close();
    });
    dialogs.MsgBox(leaving());
    EXPECT_TRUE(went_on);
}

INSTANTIATE_TEST_SUITE_P(Sizes, BoxOverTheDesk, testing::Values(13, 20));

} // namespace sonarelle

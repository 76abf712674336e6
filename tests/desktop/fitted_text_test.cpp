#include "desktop/fitted_text.h"

#include <QTextLayout>

#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

class FittedText : public DesktopFixture {
protected:
    [[nodiscard]] QString words(const QString& text, int width) const {
        return without_joints(with_fitting_words(text, metrics, width));
    }
    [[nodiscard]] int length_of(const QString& text) const { return metrics.horizontalAdvance(text); }

    const QFontMetrics metrics{QApplication::font()};
};

} // namespace

TEST_F(FittedText, LeavesWhatFitsAsItIs) {
    const QString text = "Le fichier C:\\Ma musique\\un titre.mp3 existe.\nContinuer ?";
    EXPECT_EQ(words(text, 2000), text);
    EXPECT_EQ(fitting_line(text, metrics, 4000), text);
}

TEST_F(FittedText, KeepsAPathThatFitsOnOneLine) {
    const QString path = "C:\\Ma musique\\a-b & c\\un titre.mp3";
    const QString text = with_fitting_words("Le fichier " + path + " existe", metrics, 2000);
    for (int width = length_of(path) + 8; width < 2 * length_of(path); width += 7) {
        QTextLayout layout{text, QApplication::font()};
        layout.beginLayout();
        int lines_with_the_path = 0;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            const QString words = without_joints(text.mid(line.textStart(), line.textLength()));
            lines_with_the_path += words.contains(path) ? 1 : 0;
        }
        layout.endLayout();
        EXPECT_EQ(lines_with_the_path, 1) << width;
    }
}

TEST_F(FittedText, CutsALongPathInItsMiddle) {
    const QString path = "C:\\Ma musique\\" + QString(100, u'a') + "\\un titre.mp3";
    const QString shown = words("Le fichier " + path + " existe", 300);
    EXPECT_TRUE(shown.startsWith("Le fichier C:\\Ma ")) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith("titre.mp3 existe")) << shown.toStdString();
    EXPECT_LE(length_of(shown.section(' ', 2, -2)), 300);
}

TEST_F(FittedText, KnowsSharesAndThePathsOfTheMachine) {
    for (const QString begin : {"\\\\serveur\\", "/media/", "D:\\"}) {
        const QString shown = words("Dossier " + begin + QString(100, u'a') + " b\\fin.wav", 300);
        EXPECT_TRUE(shown.startsWith("Dossier " + begin)) << shown.toStdString();
        EXPECT_TRUE(shown.endsWith("fin.wav")) << shown.toStdString();
        EXPECT_TRUE(shown.contains(u'…'));
    }
}

TEST_F(FittedText, CutsAWordThatNoLineHolds) {
    const QString shown = words("un " + QString(200, u'x') + " mot", 200);
    EXPECT_TRUE(shown.startsWith("un x"));
    EXPECT_TRUE(shown.endsWith("x mot"));
    EXPECT_LE(length_of(shown.section(' ', 1, 1)), 200);
}

TEST_F(FittedText, MakesALineFitByItsPath) {
    const QString shown = fitting_line("Supprimer le fichier C:\\" + QString(200, u'a') + "\\liste.dfm", metrics, 300);
    EXPECT_TRUE(shown.startsWith("Supprimer le fichier C:\\a")) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith(".dfm")) << shown.toStdString();
    EXPECT_LE(length_of(shown), 300);
}

TEST_F(FittedText, MakesALineWithoutAPathFit) {
    EXPECT_LE(length_of(fitting_line(QString(200, u'a'), metrics, 300)), 300);
}

} // namespace sonarelle

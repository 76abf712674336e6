#include <QLineEdit>

#include "desktop/desktop_fixture.h"
#include "desktop/plain_views.h"

namespace sonarelle {

namespace {

using FormView = DesktopFixture;

} // namespace

TEST_F(FormView, KeepsManyFieldsWholeInAWindowThatFitsTheScreen) {
    std::vector<std::unique_ptr<TextBox>> boxes;
    for (int i = 0; i < 40; ++i)
        boxes.push_back(std::make_unique<TextBox>(window, "champ" + std::to_string(i), "texte"));
    const auto view = form_view(window, services);
    window.show();
    settle();
    EXPECT_LE(view->height(), 560);
    for (const auto* line : view->findChildren<QLineEdit*>())
        EXPECT_GE(line->height(), line->minimumSizeHint().height()) << line->objectName().toStdString();
}

TEST_F(FormView, KeepsItsButtonsWholeBelowSixLines) {
    std::vector<std::unique_ptr<Label>> lines;
    for (int i = 0; i < 6; ++i)
        lines.push_back(std::make_unique<Label>(window, "ligne" + std::to_string(i), "Un texte sur une ligne"));
    Button close{window, "fermer", "Fermer"};
    const auto view = form_view(window, services);
    window.show();
    settle();
    const auto* button = view->findChild<QWidget*>("fermer");
    EXPECT_GE(button->height(), button->sizeHint().height());
    EXPECT_TRUE(view->rect().contains(QRect{button->mapTo(view.get(), QPoint{}), button->size()}));
}

TEST_F(FormView, KeepsItsButtonsWholeWhenATextGrows) {
    std::vector<std::unique_ptr<Label>> lines;
    for (int i = 0; i < 6; ++i)
        lines.push_back(std::make_unique<Label>(window, "ligne" + std::to_string(i), "Un texte sur une ligne"));
    Button close{window, "fermer", "Fermer"};
    const auto view = form_view(window, services);
    window.show();
    settle();
    lines.front()->caption = "Un dossier dont le chemin est si long qu'il lui faut plus d'une ligne de la fenêtre, et "
                             "même davantage que deux de ces lignes";
    settle();
    settle();
    const auto* button = view->findChild<QWidget*>("fermer");
    EXPECT_TRUE(view->rect().contains(QRect{button->mapTo(view.get(), QPoint{}), button->size()}));
}

} // namespace sonarelle

#include <QLineEdit>

#include "desktop/desktop_fixture.h"
#include "desktop/plain_views.h"
#include "platform/row_table.h"

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

TEST_F(FormView, HasItsButtonsSideBySideBelowAllElse) {
    const Button close{window, "fermer", "Fermer"};
    const GraphicButton save{window, "sauver", "Sauver"};
    const Label text{window, "texte", "Un texte"};
    const TextBox box{window, "champ"};
    const auto view = form_view(window, services);
    window.show();
    settle();
    const auto top = [&](const Control& control) {
        return view->findChild<QWidget*>(QString::fromStdString(control.name()))->mapTo(view.get(), QPoint{}).y();
    };
    EXPECT_EQ(top(close), top(save));
    EXPECT_GT(top(close), top(box));
    EXPECT_GT(top(box), top(text));
}

TEST_F(FormView, HasEveryKindOfControl) {
    OptionGroup group;
    const Label label{window, "label", "Texte"};
    const TextBox text_box{window, "text_box"};
    const CheckBox check_box{window, "check_box"};
    const OptionButton option{window, group, "option"};
    const Button button{window, "button"};
    const GraphicButton graphic_button{window, "graphic_button"};
    const Image image{window, "image"};
    const Slider slider{window, "slider", 0, 10};
    const ProgressBar progress_bar{window, "progress_bar"};
    const ComboBox combo_box{window, "combo_box"};
    const ListBox list_box{window, "list_box"};
    const RowTable row_table{window, "row_table", {{"Chemin", Twips{900}}}};
    const RichText rich_text{window, "rich_text"};
    const Frame frame{window, "frame"};
    const Movie movie{window, "movie"};
    const MenuItem entry{window, "entry"};
    const SoundDisplay display{window, "display"};
    const auto view = form_view(window, services);
    window.show();
    settle();
    for (const Control* control : window.controls()) {
        const bool has_place = control != &entry && control != &display;
        EXPECT_EQ(view->is_bound(*control), has_place) << control->name();
        const auto* part = view->findChild<QWidget*>(QString::fromStdString(control->name()));
        EXPECT_EQ(part != nullptr && part->isVisible(), has_place) << control->name();
    }
}

} // namespace sonarelle

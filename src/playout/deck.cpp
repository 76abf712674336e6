#include "playout/deck.h"

#include <algorithm>
#include <array>
#include <span>

#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr std::array<std::string_view, 5> video_endings{"mpeg", "avi", "mpg", "wmv", ".wm"};
constexpr std::size_t classic_ending_count = 3;

bool is_one_of(std::span<const std::string_view> endings, std::string_view extension) {
    return std::ranges::find(endings, extension) != endings.end();
}

} // namespace

bool has_video_ending(std::string_view extension) {
    return is_one_of(video_endings, extension);
}

bool has_classic_video_ending(std::string_view extension) {
    return is_one_of(std::span{video_endings}.first<classic_ending_count>(), extension);
}

MediaGraph& Deck::graph() const {
    if (graph_ == nullptr)
        throw Failure{FailureNumber::no_object, "lecteur " + name()};
    return *graph_;
}

bool Deck::sounds() const {
    return has_graph() && graph_->GetState() == MediaState::running &&
           graph_->get_CurrentPosition() < graph_->get_Duration();
}

bool Deck::is_at_its_end() const {
    return has_graph() && graph_->GetState() == MediaState::running && !sounds();
}

bool Deck::rests() const {
    return !has_graph() || (graph_->GetState() != MediaState::running && !pause_lecteur.is_true());
}

void Deck::create_graph() {
    tell_that_graph_leaves();
    close_video();
    graph_ = media_.create_graph();
    end_pause();
}

// The video window holds on to the graph, which is silent all the same once it is dropped.
void Deck::drop_graph() {
    tell_that_graph_leaves();
    if (graph_ != nullptr && video_ != nullptr)
        graph_->Stop();
    graph_.reset();
    end_pause();
}

void Deck::forget_record() {
    fin_piste.clear();
    debut_piste = 0;
    genre.clear();
    start_by_hand.reset();
    volume_piste.reset();
}

void Deck::tell_that_graph_leaves() const {
    if (on_graph_leaves)
        on_graph_leaves();
}

void Deck::end_pause() {
    pause_lecteur = false;
    controls.pause.caption = std::string{pause_caption};
}

void Deck::open_video(std::string_view caption) {
    video_ = graph_;
    graph().put_Caption(caption);
}

} // namespace sonarelle

#include "live_fixture.h"

namespace sonarelle {

void ThreeGraphs::make_files(const SoundFolder& folder) {
    folder.encoded("first.mp3", 6, "-q:a 4");
    folder.counting_wav("second.wav", 3);
}

ThreeGraphs::ThreeGraphs(Scheduler& scheduler, Media& media, const SoundFolder& folder)
    : media_{media},
      first_path_{folder.path("first.mp3")},
      second_path_{folder.path("second.wav")},
      timer_{"Timer1", 1, scheduler} {
    timer_.set_interval(Integer{10});
    timer_.on_tick = [this] { act(++tick_); };
    timer_.enable();
}

void ThreeGraphs::act(int tick) {
    const auto open = [this](const std::string& path) {
        auto graph = media_.create_graph();
        graph->RenderFile(path);
        return graph;
    };
    switch (tick) {
    case 10:
        first_ = open(first_path_);
        second_ = open(second_path_);
        third_ = open(first_path_);
        break;
    case 20:
        first_->Run();
        break;
    case 50:
        second_->put_CurrentPosition(0.5);
        second_->put_Volume(Millibel{-600});
        second_->Run();
        break;
    case 70:
        first_->put_Volume(Millibel{-1500});
        break;
    case 90:
        third_->put_CurrentPosition(3.3);
        third_->Run();
        break;
    case 110:
        second_->Pause();
        break;
    case 130:
        second_->Run();
        first_.reset();
        break;
    case 150:
        third_->put_CurrentPosition(1.1);
        break;
    default:
        break;
    }
}

} // namespace sonarelle

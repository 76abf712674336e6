#include "platform/media.h"

namespace sonarelle {

namespace {

class LengthsByGraph final : public LengthsAhead {
public:
    explicit LengthsByGraph(Media& media)
        : media_{media} {}

    void want(std::string_view) override {}

    [[nodiscard]] std::optional<MeasuredLength> take(std::string_view path, std::chrono::milliseconds) override {
        try {
            const auto graph = media_.create_graph();
            graph->RenderFile(path);
            return MeasuredLength{graph->get_Duration(), {}};
        } catch (const Failure& failure) {
            return MeasuredLength{0, failure};
        }
    }

private:
    Media& media_;
};

} // namespace

std::unique_ptr<LengthsAhead> Media::measure_ahead() {
    return std::make_unique<LengthsByGraph>(*this);
}

} // namespace sonarelle

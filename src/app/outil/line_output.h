#pragma once

#include <memory>
#include <string>

namespace sonarelle {

/// Lines for whoever reads a file descriptor, written by a thread of its own: a reader that ends, or that reads no
/// more, never holds up the station. What finds no room is dropped.
class LineOutput {
public:
    explicit LineOutput(int descriptor);
    /// Waits for what is still to be written, as long as a second; a thread that hangs is left behind.
    ~LineOutput();
    LineOutput(const LineOutput&) = delete;
    LineOutput& operator=(const LineOutput&) = delete;

    /// Takes a line with its end of line. False when it was dropped: too many wait already, or nobody is there.
    bool write(std::string line);

    /// How many lines were dropped.
    [[nodiscard]] int lost() const;

private:
    struct Shared;

    std::shared_ptr<Shared> shared_;
};

} // namespace sonarelle

#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

namespace tessivo {

/// Adds up the times of two rivals that take turns.
class Duel {
public:
    template <class Work>
    void ours(Work work) {
        ours_ += timeOf(work);
    }
    template <class Work>
    void floor(Work work) {
        floor_ += timeOf(work);
    }
    void report(benchmark::State& state, double perIteration) const {
        const auto count = static_cast<double>(state.iterations()) * perIteration;
        state.counters["ours_us_per_row"] = ours_ * 1e6 / count;
        state.counters["floor_us_per_row"] = floor_ * 1e6 / count;
        state.counters["ratio"] = ours_ / floor_;
    }

private:
    template <class Work>
    static double timeOf(Work& work) {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    double ours_ = 0;
    double floor_ = 0;
};

} // namespace tessivo

// The benchmarks' entry point gives each run a settings home of its own (VX_CONFIG_HOME), so
// that no benchmark touches the settings of the person running it. BenchHome() is its path.
#pragma once

#include <string>

namespace vx::bench {

const std::string& BenchHome();

}  // namespace vx::bench

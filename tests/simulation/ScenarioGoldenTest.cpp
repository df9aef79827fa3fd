#include "simulation/JsonLinesEventWriter.hpp"
#include "simulation/ScenarioRunner.hpp"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace quenby {
namespace {

namespace fs = std::filesystem;

const fs::path kScenarioDirectory = fs::path(QUENBY_SOURCE_DIR) / "tests" / "scenarios";

std::vector<std::string> scenarioNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kScenarioDirectory)) {
    if (entry.path().extension() == ".qsim") {
      names.push_back(entry.path().stem().string());
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What `quenbyctl simulate` prints for a scenario, with a closing "# exit N: message" line when
/// the run stops early; the same form scripts/update-scenarios writes.
std::string transcript(const fs::path& script) {
  std::ostringstream out;
  JsonLinesEventWriter writer(out);
  ScenarioRunner runner(writer, script.parent_path().string());
  std::ifstream in(script);
  if (const int status = runner.run(in); status != 0) {
    out << "# exit " << status << ": " << runner.error() << "\n";
  }
  return out.str();
}

class ScenarioGoldenTest : public ::testing::TestWithParam<std::string> {};

TEST_P(ScenarioGoldenTest, PrintsItsExpectedEffects) {
  const fs::path script = kScenarioDirectory / (GetParam() + ".qsim");
  const fs::path expected = kScenarioDirectory / (GetParam() + ".expected");
  ASSERT_TRUE(fs::exists(expected)) << "run `make scenarios` to create " << expected;
  EXPECT_EQ(transcript(script), readFile(expected))
      << "if the change is intended, run `make scenarios` and review the diff";
}

INSTANTIATE_TEST_SUITE_P(Scenarios, ScenarioGoldenTest, ::testing::ValuesIn(scenarioNames()),
                         [](const auto& info) {
                           std::string name = info.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

struct PipeCloser {
  void operator()(FILE* pipe) const { ::pclose(pipe); }
};

TEST(QuenbyctlTest, NarratesTheTourAndExplainsMisuse) {
  const std::string command = std::string(QUENBYCTL_PATH) + " simulate --narrate " +
                              QUENBY_SOURCE_DIR + "/examples/tour.qsim 2>&1";
  std::unique_ptr<FILE, PipeCloser> pipe(::popen(command.c_str(), "r"));
  ASSERT_NE(pipe, nullptr);
  std::string output;
  char buffer[4096];
  while (const std::size_t got = std::fread(buffer, 1, sizeof buffer, pipe.get())) {
    output.append(buffer, got);
  }
  const int status = ::pclose(pipe.release());
  EXPECT_EQ(status, 0) << output;
  EXPECT_NE(output.find("Quenby finished launching"), std::string::npos) << output;
  EXPECT_EQ(output.find("{\"t\""), std::string::npos) << "narration prints sentences, not JSON";

  const std::string misuse = std::string(QUENBYCTL_PATH) + " simulate >/dev/null 2>&1";
  EXPECT_NE(std::system(misuse.c_str()), 0);
}

} // namespace
} // namespace quenby

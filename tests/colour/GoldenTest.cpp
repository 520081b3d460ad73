// One sample per language family and beside it the expected runs of every
// line, checked by eye when written. Set TEXTZONE_WRITE_GOLDEN=1 to write
// the runs as the code computes them, then review the diff by hand.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "ColourZone.h"
#include "GoldenSamples.h"

namespace {

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

class GoldenTest : public ColourTest, public ::testing::WithParamInterface<GoldenSample> {};

TEST_P(GoldenTest, RunsOfEveryLine) {
    const GoldenSample& sample = GetParam();
    const std::string base = std::string(TEXTZONE_COLOUR_DATA) + "/" + sample.name;
    const std::string text = ReadFile(base + ".txt");
    ASSERT_FALSE(text.empty()) << base << ".txt";
    sample.setup(m_zone);
    m_zone.SetText(text.c_str());
    const std::string runs = Dump();
    if (std::getenv("TEXTZONE_WRITE_GOLDEN")) {
        std::ofstream(base + ".runs", std::ios::binary) << runs;
        return;
    }
    EXPECT_EQ(runs, ReadFile(base + ".runs")) << sample.name;
}

INSTANTIATE_TEST_SUITE_P(Languages, GoldenTest, ::testing::ValuesIn(kGoldenSamples),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace

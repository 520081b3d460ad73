// One sample per language family and beside it the expected runs of every
// line, checked by eye when written. Set TEXTZONE_WRITE_GOLDEN=1 to write
// the runs as the code computes them, then review the diff by hand.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "ColourZone.h"
#include "GoldenSamples.h"
#include "support/TestFiles.h"

namespace {

class GoldenTest : public ColourTest, public ::testing::WithParamInterface<GoldenSample> {};

TEST_P(GoldenTest, RunsOfEveryLine) {
    const GoldenSample& sample = GetParam();
    const std::string base = std::string(TEXTZONE_COLOUR_DATA) + "/" + sample.name;
    const std::string text = ReadFileBytes(base + ".txt");
    ASSERT_FALSE(text.empty()) << base << ".txt";
    sample.setup(m_zone);
    m_zone.SetText(text.c_str());
    const std::string runs = Dump();
    if (std::getenv("TEXTZONE_WRITE_GOLDEN")) {
        WriteFileBytes(base + ".runs", runs);
        return;
    }
    EXPECT_EQ(runs, ReadFileBytes(base + ".runs")) << sample.name;
}

INSTANTIATE_TEST_SUITE_P(Languages, GoldenTest, ::testing::ValuesIn(kGoldenSamples),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace

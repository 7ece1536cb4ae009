#include "formats/universe_map.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvane {
namespace {

TEST(ParseUniverseMap, ReadsTabsBlanksAndQuotedNames) {
  const Result<UniverseMap> map = ParseUniverseMap(
      "#\tX\tY\tName\r\n1\t1014\t1098\tKestrel \r\n\r\n"
      "40000 1200 2399 \"O'Hara, B\"\n-32000\t1100\t1200\t409, dropped\r\n\x1A left over",
      "Demo.MAP");
  ASSERT_TRUE(map) << map.Message();
  ASSERT_EQ(map->Planets.size(), 3U);
  EXPECT_EQ(map->Planets[0].Name, "Kestrel ");
  EXPECT_EQ(map->Planets[1].Number, 40000);
  EXPECT_EQ(map->Planets[1].Name, "O'Hara, B");
  EXPECT_EQ(map->Planets[2].Name, "409");
  EXPECT_EQ(map->Planets[2].Number, -32000);
}

TEST(ParseUniverseMap, TakesItsExtentFromTheLargestYAndTheLastX) {
  const std::tuple<const char*, int> cases[] = {
      {"h\n1 1900 2400 a\n2 1500 1000 b\n", 2500},  // the larger X before the last is not looked at
      {"h\n1 1010 1500 a\n2 2499 1000 b\n", 2500},
      {"h\n1 1010 2499 a\n", 2500},
      {"h\n1 1010 1000 a\n", 1100}};
  for (const auto& [text, extent] : cases) {
    const Result<UniverseMap> map = ParseUniverseMap(text, "Demo.MAP");
    ASSERT_TRUE(map) << map.Message();
    EXPECT_EQ(map->Extent, extent) << text;
  }
}

TEST(ParseUniverseMap, NamesFileLineAndReasonForDamagedMaps) {
  const std::string longName = "h\n1 1010 1010 " + std::string(1001, 'a');
  const std::tuple<const char*, const char*> cases[] = {
      {"", "Demo.MAP, line 2: a planet was expected here, the map has none"},
      {"#\tX\tY\tName\r\n\r\n", "Demo.MAP, line 2: a planet was expected here, the map has none"},
      {"h\n1 1010 1010 a\nx 1 2 b\n", "Demo.MAP, line 3: the planet number is no number: x"},
      {"h\n1 12a 1010 a\n", "Demo.MAP, line 2: X is no number: 12a"},
      {"h\n1 1010\n2 1 2 b\n", "Demo.MAP, line 2: Y is no number, it is missing"},
      {"h\n3e9 1010 1010 a\n", "Demo.MAP, line 2: the planet number is out of range: 3e9"},
      {"h\n1 40000 1010 a\n", "Demo.MAP, line 2: X is out of range: 40000"},
      {"h\n1 1010 -32000 a\n", "Demo.MAP, line 2: Y is out of range: -32000"},
      {"h\n1 1e999 1010 a\n", "Demo.MAP, line 2: X is out of range: 1e999"},
      {longName.c_str(),
       "Demo.MAP, line 2: the planet's name is too long: "
       "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa..."},
      {"h\n1 900 999 a\n",
       "Demo.MAP: the universe would end at 1000, it must end above 1000 and below 32768"}};
  for (const auto& [text, message] : cases) {
    const Result<UniverseMap> map = ParseUniverseMap(text, "Demo.MAP");
    ASSERT_FALSE(map) << text;
    EXPECT_EQ(map.Message(), message);
  }
}

}  // namespace
}  // namespace quorvane

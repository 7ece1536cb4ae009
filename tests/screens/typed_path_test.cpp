#include "screens/typed_path.h"

#include <gtest/gtest.h>

#include <tuple>

#include "files/files.h"

namespace quorvane {
namespace {

TEST(TypedPath, TakesWhatPeopleTypeAndFileManagersCopy) {
  const std::filesystem::path folder = "/games/now";
  const std::tuple<const char*, const char*> cases[] = {
      {"/old/games", "/old/games"},
      {"", "/games/now/"},
      {" \t ", "/games/now/"},
      {"Demo.map", "/games/now/Demo.map"},
      {"../then", "/games/now/../then"},
      {" \"/old games \"\r\n", "/old games "},
      {"'/it's'", "/it's"},
      {"\"", "/games/now/\""},
      {"\"/old", "/games/now/\"/old"},
      {"~", "/home/me/"},
      {"~/old", "/home/me/old"},
      {"~//old", "/home/me/old"},
      {"~old", "/games/now/~old"},
      {"file:///old%20games/%C3%A9%2f", "/old games/é/"},
      {"FILE://localhost/~/100%/%2x/%00%4", "/~/100%/%2x/%00%4"},
      {"file:///one.map\r\nfile:///two.map", "/one.map"},
      {"file://", "/games/now/"},
  };
  for (const auto& [typed, path] : cases) {
    EXPECT_EQ(TypedPath(typed, folder, "/home/me"), PathFromText(path)) << typed;
  }
}

}  // namespace
}  // namespace quorvane

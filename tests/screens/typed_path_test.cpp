#include "screens/typed_path.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(TypedPath, MeansWhatUsersPaste) {
  const std::filesystem::path cases[][2] = {
    {"/games/mine", "/games/mine"},
    {"  \"/games/my game\" ", "/games/my game"},
    {"'/games/x.map'", "/games/x.map"},
    {"\"", "/shown/\""},
    {"~", "/home/me"},
    {"~/Stars", "/home/me/Stars"},
    {"below", "/shown/below"},
    {"", "/shown"},
#if !defined(_WIN32)
    {"C:\\Stars\\game.map", "/home/me/.wine/drive_c/Stars/game.map"},
#endif
  };
  for (const auto& [typed, meant] : cases) {
    EXPECT_EQ(TypedPath(typed.string(), "/shown", "/home/me"), meant) << typed;
  }
}

}  // namespace
}  // namespace quorvane

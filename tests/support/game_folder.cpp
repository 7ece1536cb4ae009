#include "support/game_folder.h"

namespace quorvane {
namespace {

constexpr const char* kHeading = "Planet Name\tOwner\tStarbase Type\tReport Age\r\n";

// The degree sign is byte 0xBA; in octal, because the C after it would count as hexadecimal.
constexpr const char* kOwnReport =
    "Alpha\tHumanoid\tSpace Dock\t0\t900000\t88%\t   --- Queue is Empty ---\t310\t420\t54.21%\t"
    "1203\t877\t1450\t31\t22\t40\t64\t51\t80\t905\t1.12g\t24\272C\t47mR\t1.04g\t16\272C\t47mR\t"
    "97%\t61\t220\t100\t\t0\t\t300\t500\t0\r\n"
    "Beta\tHumanoid\t\t0\t250000\t50%\t\t100\t120\t20.00%\t12\t8\t14\t-1\t-1\t-1\t6\t5\t8\t150\t"
    "1.5g\t-20\272C\t60mR\t1.5g\t-20\272C\t60mR\t70%\t61\t100\t0\t\t0\t\t0\t0\t0\r\n"
    "Gamma\tDrask\t\t5\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\r\n";

constexpr const char* kOtherReport =
    "Gamma\tDrask\tDeath Star\t0\t1200000\t100%\t\t500\t500\t80.00%\t1\t2\t3\t4\t5\t6\t7\t8\t9\t"
    "800\t2g\t0\272C\t20mR\t2g\t0\272C\t20mR\t100%\t61\t220\t100\t\t0\t\t-1\t-1\t0\r\n"
    "Alpha\tHumanoid\t\t9\t100\t-5%\t\r\n";

}  // namespace

std::string TurnBlock(int year) {
  constexpr int kByte = 256;
  const int turn = year - 2400;
  return std::string("\x10\x20J3J3\x01\x02\x03\x04\x60\x2A", 12) + static_cast<char>(turn % kByte) +
         static_cast<char>(turn / kByte) + "abcd";
}

GameFolder::GameFolder() {
  Write("Demo.MAP",
        "#\tX\tY\tName\r\n1\t1050\t1300\tAlpha\r\n2\t1120\t1250\tBeta\r\n3\t1300\t1100\tGamma\r\n"
        "4\t1390\t1390\tDelta\r\n");
  Write("Demo.P1", std::string(kHeading) + kOwnReport);
  Write("Demo.P3", std::string(kHeading) + kOtherReport);
}

void GameFolder::AddOldReport() const {
  Write("Demo.PLA", std::string(kHeading) +
                        "Alpha\tHumanoid\tSpace Dock\t0\t900000\t88%\t\t310\t420\t54.21%\t1\t2\t3\t"
                        "1\t2\t3\t1\t2\t3\t905\r\n");
}

}  // namespace quorvane

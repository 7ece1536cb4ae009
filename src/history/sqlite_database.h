#pragma once

// What headers need of the library; its own are included by sources alone.
namespace SQLite {  // NOLINT: the library's name
class Database;
}

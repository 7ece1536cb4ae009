#include "paint/picture_file.h"

#include <QBuffer>
#include <QImageWriter>
#include <string_view>

#include "files/files.h"

namespace quorvane {

Result<void> SavePicture(const std::filesystem::path& file, const QImage& picture,
                         const char* format) {
  QBuffer written;
  QImageWriter writer(&written, format);
  if (!writer.write(picture)) {
    return Failure{TextFromPath(file.filename()) + ": " + writer.errorString().toStdString()};
  }
  const QByteArray& bytes = written.data();
  return ReplaceFile(file,
                     std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace quorvane

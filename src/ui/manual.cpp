#include "ui/manual.h"

#include <QFile>
#include <QTextTable>
#include <QVBoxLayout>

// Resources in a static library are linked only when somebody asks for them by name.
static void LoadManual() { Q_INIT_RESOURCE(manual); }

namespace quorvane {
namespace {

constexpr QSize kFirstSize(760, 720);
constexpr int kMargin = 16;
constexpr int kCellPadding = 3;

QString ManualText() {
  LoadManual();
  QFile file(":/manual.md");
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Markdown says nothing of a table's look.
void SetLook(QTextDocument& text) {
  text.setDocumentMargin(kMargin);
  for (QTextFrame* frame : text.rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat look = table->format();
    look.setBorder(0);
    look.setCellSpacing(0);
    look.setCellPadding(kCellPadding);
    table->setFormat(look);
  }
}

}  // namespace

Manual::Manual() {
  setObjectName("Manual");
  setWindowTitle("Manual");
  setWindowFlags(Qt::Window);
  setAttribute(Qt::WA_QuitOnClose, false);
  Text = new QTextBrowser(this);
  Text->setObjectName("Text");
  Text->setAccessibleName(tr("Manual"));
  Text->setMarkdown(ManualText());
  SetLook(*Text->document());
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(Text);
  resize(kFirstSize);
}

}  // namespace quorvane

#include "help/GuideFiles.h"

#include "core/ReplaceFile.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "help/GuideBook.h"

#include <QImage>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextDocument>

namespace {

constexpr qsizetype lineLength = 78;

void addLine(QStringList& lines, const QString& paragraph) {
    QString line;
    for (const QString& word : paragraph.split(' ', Qt::SkipEmptyParts)) {
        if (!line.isEmpty() && line.size() + 1 + word.size() > lineLength) {
            lines.append(line);
            line.clear();
        }
        line += line.isEmpty() ? word : ' ' + word;
    }
    lines.append(line);
}

std::string plainGuide() {
    QStringList lines;
    for (const GuidePage& page : guidePages()) {
        QTextDocument document;
        document.setHtml(page.html);
        QString text = document.toPlainText();
        text.remove(QChar::ObjectReplacementCharacter);
        for (const QString& paragraph : text.split('\n')) {
            addLine(lines, paragraph);
            lines.append(QString());
        }
        lines.append(QString());
    }
    return lines.join('\n').toStdString() + '\n';
}

void setGuide(QTextDocument& document) {
    QString html;
    for (const GuidePage& page : guidePages()) {
        QString part = page.html;
        if (!html.isEmpty())
            part.replace(QStringLiteral("<h1>"), QStringLiteral("<h1 style=\"page-break-before: always\">"));
        html += part;
    }
    for (const char* name : {"FrmMain.png", "FrmMap.png"})
        document.addResource(QTextDocument::ImageResource, QUrl(name), QImage(guidePicturePath(name)));
    document.setHtml(html);
}

void writePdf(const std::string& path) {
    QSaveFile file(QString::fromStdString(path));
    if (file.open(QIODevice::WriteOnly)) {
        {
            QPdfWriter writer(&file);
            writer.setTitle(QStringLiteral("Callscope Mapping: user guide"));
            writer.setPageSize(QPageSize(QPageSize::A4));
            QTextDocument document;
            setGuide(document);
            document.print(&writer);
        }
        if (file.commit())
            return;
    }
    throw RuntimeError(75, "The file '" + path + "' cannot be written: " + file.errorString().toStdString());
}

} // namespace

void writeGuideFiles(const std::string& folder) {
    writePdf(joinPath(folder, "CallscopeMapping.pdf"));
    replaceFile(joinPath(folder, "CallscopeMapping.txt"), plainGuide());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/XmlDicxFileItem.h"

#include "dictionary/mirror/PathResolver.h"

#include <QCoreApplication>
#include <QDir>
#include <QList>
#include <QXmlStreamReader>

namespace {

/// The engine opens nothing that goes beyond; it tells so itself.
constexpr int mostLevels = 64;
constexpr int mostItems = 1'010'000;

class ItemReader {
public:
    ItemReader(QIODevice* file, const std::function<bool(const XmlDicxFileItem&)>& visit)
        : xml_(file), visit_(visit) {
        xml_.setNamespaceProcessing(false);
    }

    void read() {
        if (!xml_.readNextStartElement())
            return;
        while (xml_.readNextStartElement()) {
            if (xml_.qualifiedName() == QLatin1String("root")) {
                readEntity(1);
                return;
            }
            xml_.skipCurrentElement();
        }
    }

private:
    void readEntity(int level) {
        XmlDicxFileItem entity;
        QList<XmlDicxFileItem> variables;
        bool told = false;
        while (!stopped_ && xml_.readNextStartElement()) {
            if (xml_.qualifiedName() == QLatin1String("entity")) {
                told = told || tell(entity, variables);
                if (level < mostLevels)
                    readEntity(level + 1);
                else
                    xml_.skipCurrentElement();
            } else if (told) {
                xml_.skipCurrentElement(); // what follows a lower entity is not this one's
            } else if (xml_.qualifiedName() == QLatin1String("variable")) {
                addVariable(variables);
            } else {
                readField(entity);
            }
        }
        if (!told)
            tell(entity, variables);
    }

    void addVariable(QList<XmlDicxFileItem>& variables) {
        XmlDicxFileItem variable;
        variable.kind = XmlDicxFileItem::Kind::Variable;
        while (xml_.readNextStartElement())
            readField(variable);
        if (++count_ > mostItems)
            stopped_ = true;
        variables += variable;
    }

    void readField(XmlDicxFileItem& item) {
        if (xml_.qualifiedName() == QLatin1String("name"))
            item.name = text();
        else if (xml_.qualifiedName() == QLatin1String("filename"))
            item.fileName = text();
        else
            xml_.skipCurrentElement();
    }

    QString text() { return xml_.readElementText(QXmlStreamReader::SkipChildElements).trimmed(); }

    /// True, so that the caller notes it as done.
    bool tell(const XmlDicxFileItem& entity, const QList<XmlDicxFileItem>& variables) {
        if (stopped_ || ++count_ > mostItems) {
            stopped_ = true;
            return true;
        }
        stopped_ = !visit_(entity);
        for (qsizetype i = 0; !stopped_ && i < variables.size(); ++i)
            stopped_ = !visit_(variables[i]);
        return true;
    }

    QXmlStreamReader xml_;
    const std::function<bool(const XmlDicxFileItem&)>& visit_;
    int count_ = 0;
    bool stopped_ = false;
};

QString withForwardSlashes(QString name) {
    return name.replace('\\', '/');
}

} // namespace

QString XmlDicxFileItem::kindText() const {
    return kind == Kind::Entity ? QCoreApplication::translate("XmlDicxDictionary", "Entity")
                                : QCoreApplication::translate("XmlDicxDictionary", "Variable");
}

QString XmlDicxFileItem::bareName() const {
    return withForwardSlashes(fileName).section('/', -1);
}

QString XmlDicxFileItem::path(const QString& folder) const {
    return QDir::cleanPath(QDir(folder).absoluteFilePath(resolvePath(fileName, folder)));
}

void readDicxItems(QIODevice* file, const std::function<bool(const XmlDicxFileItem&)>& visit) {
    ItemReader(file, visit).read();
}

// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"

#include <QMetaType>
#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

/// Every drawing that a class names exists.
class DrawingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyNamedDrawingLoads()
    {
        QQmlEngine engine;
        engine.addImportPath(u"qrc:/qt/qml"_s);
        QStringList modules;
        for (const char *module :
             {"UIKit", "XLForm", "Views", "Screens"}) { // has their classes registered
            QQmlComponent component(&engine);
            component.setData("import " + QByteArray(module) + "\nimport QtQml\nQtObject {}", {});
            QVERIFY2(component.isReady(), qPrintable(component.errorString()));
        }
        for (int id = QMetaType::User; id < QMetaType::User + 4096; ++id) {
            const QMetaObject *type =
                QMetaType::isRegistered(id) ? QMetaType(id).metaObject() : nullptr;
            const int info = type ? type->indexOfClassInfo("view") : -1;
            if (info < 0) {
                continue;
            }
            const QString file = QString::fromLatin1(type->classInfo(info).value());
            QQmlComponent component(&engine, QUrl(u"qrc:/qt/qml/"_s + file));
            QVERIFY2(component.isReady(), qPrintable(component.errorString()));
            modules.append(file.section(u'/', 0, 0));
        }
        modules.removeDuplicates();
        modules.sort();
        QCOMPARE(modules, (QStringList{u"Screens"_s, u"UIKit"_s, u"Views"_s, u"XLForm"_s}));
    }
};

WZT_TEST(DrawingsTest)
#include "DrawingsTest.moc"

// SPDX-License-Identifier: Apache-2.0
#include "platform/standardTexts.h"

#include <QCoreApplication>
#include <QTranslator>

void speakJapanese(QCoreApplication& application) {
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral(":/translations/qtbase_ja.qm"))) {
        QCoreApplication::installTranslator(translator);
    }
}

// SPDX-License-Identifier: Apache-2.0
// The words that Qt itself brings (menus of the title bars, buttons of its own dialogs) in the language of this program.

#pragma once

class QCoreApplication;

// Nothing happens where the build had no translation of Qt.
void speakJapanese(QCoreApplication& application);

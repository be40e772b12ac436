// SPDX-License-Identifier: Apache-2.0
// What helps the learner, as a set: popups and messages, the start and version panel, the hint book, the circuit diagrams, the
// list of tours and the tour window. What they want from the rest of the program goes out as signals.

#pragma once

#include "aids/navigation.h"
#include "core/answer.h"
#include "core/mduMain.h"
#include "platform/OnDemand.h"

#include <QObject>
#include <QPoint>

#include <filesystem>
#include <functional>
#include <set>
#include <string>

class QMdiArea;
class SeenByLearner;
class frmDialog;
class frmHint;
class frmKAIROZU;
class frmMessage;
class frmNaviList;
class frmNavigation;
class frmVersion;

class AidWindows : public QObject {
    Q_OBJECT

public:
    // Hint book and diagrams are children of `area`; the others belong to `owner`, the main window. The files of tours, hints and
    // diagrams lie in `folder`, the program's. `seen` is what a tour promises and other sets show.
    AidWindows(Machine& machine, QMdiArea& area, QWidget& owner, std::filesystem::path folder, const SeenByLearner& seen);
    ~AidWindows() override;

    // --- what is said ----------------------------------------------------------------------------------------------------
    // A popup at the top left of `form`, or at the pointer for null; or a warning.
    void say(const Answer& answer, const QWidget* form = nullptr);
    void popupAtPointer(const QString& text);
    void popupAtForm(const QWidget& form, const QString& text);
    // A warning whose answer decides what follows.
    void ask(const Warning& question, std::function<void(bool yes)> answered);
    void hideMessage() { frmMessage_.hide(); }

    // --- the start and version panel ---------------------------------------------------------------------------------------
    // With the message line and the progress bar of the start.
    void openStartPanel();
    void showProgress(const QString& text);
    void openVersion();
    bool versionPanelOpen() const { return frmVersion_.visible(); }

    // --- the hint book -----------------------------------------------------------------------------------------------------
    void openHint();
    bool hintOpen() const { return frmHint_.visible(); }
    // At the start and after a restart: opens the book if the settings ask for it.
    void openHintBySettings();
    // Puts the book at its place, if there is one.
    void placeHint();
    // An open book turns to the page of a register, or of the control word.
    void showHintFor(const QString& name);
    void turnToControlWord();

    // --- circuit diagrams --------------------------------------------------------------------------------------------------
    void setKAIROZU(int index);
    void changeKAIROZU(int index);
    void hideKAIROZU() { frmKAIROZU_.hide(); }

    // Better pictures for hint book and diagram have come.
    void reloadPictures();

    // --- tours -------------------------------------------------------------------------------------------------------------
    void loadNaviIndex();
    void openNaviList();
    // A tour by its number, from 1, as if it had been chosen from the list; the list itself for a number that it doesn't have.
    void openTour(std::size_t number);
    bool naviListOpen() const { return frmNaviList_.visible(); }
    // The windows were refreshed: a look at what the tour's page promises.
    void watchTour();

    // The machine starts anew: what is open for the one that goes is hidden, and goes unanswered.
    void beginRestart();

    // Null until they are first asked for.
    frmMessage* message() const;
    frmDialog* dialog() const;
    frmVersion* versionPanel() const;
    frmHint* hints() const;
    frmKAIROZU* circuitDiagram() const;
    frmNaviList* naviList() const;
    frmNavigation* navigation() const;

signals:
    void beepWanted();
    void hintShown(bool open);
    void naviListShown(bool open);
    // A window of this set is the one at work.
    void activated();
    // A tour is about to begin: the machine is to start anew on the maker's bench.
    void makersBenchWanted();

private:
    frmMessage* makeMessage();
    frmDialog* makeDialog();
    frmVersion* makeVersion();
    frmHint* makeHint();
    frmKAIROZU* makeKAIROZU();
    frmNaviList* makeNaviList();
    frmNavigation* makeNavigation();
    void startNavigation(std::size_t number);
    void hear(const QString& text);
    void popup(const QString& text, QPoint point);

    Machine& machine_;
    QMdiArea& area_;
    QWidget& owner_;
    std::filesystem::path folder_;
    const SeenByLearner& seen_;
    std::vector<NaviRecord> naviIndex_{1};  // from 1
    std::set<std::string> finishedTours_;   // by file name
    OnDemand<frmMessage> frmMessage_;
    OnDemand<frmDialog> frmDialog_;
    OnDemand<frmVersion> frmVersion_;
    OnDemand<frmHint> frmHint_;
    OnDemand<frmKAIROZU> frmKAIROZU_;
    OnDemand<frmNaviList> frmNaviList_;
    OnDemand<frmNavigation> frmNavigation_;
};

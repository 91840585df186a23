// SPDX-License-Identifier: Apache-2.0
// The preset pop-up with its menu: what is saved for the open queue, what of it is chosen, and whether it was changed
// since. It keeps the presets; laying them down is the window's.
#pragma once

#include "dialog/BackgroundWork.h"
#include "job/JobOptions.h"
#include "job/Presets.h"
#include "job/Problem.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QAction;

namespace tapeprint::dialog
{

class MenuButton;
class PopUp;

class PresetRow : public QWidget
{
    Q_OBJECT

public:
    /// What a person chooses in the pop-up.
    struct Choice {
        enum class Kind { Queue, Preset, LastTime };
        Kind kind = Kind::Queue;
        QString name; ///< of a preset

        bool operator==(const Choice &) const = default;
    };
    /// What is to be laid down for a choice.
    struct Settings {
        Choice choice;
        QString instance;       ///< the preset's name, or empty
        job::JobOptions saved;  ///< for the queue or instance
        job::JobOptions chosen; ///< has the last word over them
    };
    /// The options to save, with what panels have not handed over yet; nothing, and the person told, when one refuses.
    using OptionsToSave = std::function<std::optional<job::JobOptions>()>;

    explicit PresetRow(OptionsToSave optionsToSave, QWidget *parent);

    /// Another destination was opened. \param queue its name; empty for none, which has no presets. \param instance the
    /// preset that it was opened with; empty for none. \param notices what is to be said of that preset.
    void showQueue(const QString &queue, const QString &instance, const QStringList &notices);
    /// The job as it is now. The first look after a choice is what later ones are compared with.
    void follow(const job::JobOptions &options);
    /// A choice was laid down. \param notices what is to be said of it.
    void showLaidDown(const Choice &choice, const QStringList &notices);
    /// The job is again what the dialog was opened with.
    void revert(const QStringList &notices);

    /// Sentences about the chosen preset.
    const QStringList &notices() const { return mNotices; }

Q_SIGNALS:
    /// The person chose what is to be laid down.
    void picked(const PresetRow::Settings &settings);
    /// A preset was saved, renamed or deleted: what is chosen has another name, or is another thing than the job.
    void changed();
    void problem(const QString &sentence);

private:
    using Write = std::function<bool(job::Problem *error)>;

    void makeMenu();
    void reload();
    void fill();
    void showState();
    void pick(int index);
    const job::Preset *chosenPreset() const;
    QStringList otherNames(const QString &name) const;
    void saveAs();
    void saveOver();
    void save(const QString &name);
    void rename();
    void remove();
    void makeDefault();
    void change(const Write &write, const std::function<void()> &then);

    OptionsToSave mOptionsToSave;
    BackgroundWork mWriting;
    QString mQueue;
    std::vector<job::Preset> mPresets;
    std::vector<Choice> mChoices; ///< the pop-up's items
    /// A choice, and the job as it left it; nothing until the job is looked at.
    struct State {
        Choice choice;
        std::optional<job::JobOptions> unchanged;
    };
    State mState;
    State mOpenedWith;
    bool mIsAsOpened = true; ///< nothing was chosen since the dialog was opened
    job::JobOptions mCurrent;
    QStringList mNotices;

    PopUp *mPopUp = nullptr;
    MenuButton *mMenuButton = nullptr;
    QAction *mSaveAs = nullptr;
    QAction *mSaveOver = nullptr;
    QAction *mRename = nullptr;
    QAction *mDelete = nullptr;
    QAction *mMakeDefault = nullptr;
};

} // namespace tapeprint::dialog

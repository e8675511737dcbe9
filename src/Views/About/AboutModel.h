#pragma once

#include "AppModel.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantList>
#include <QtQml/qqml.h>


// The About window's model: the lifetime total, the clean history as rows for the list, and the
// history's actions (put a clean back, clear the list, show the Trash). Main thread only.
class AboutModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QString totalText READ totalText NOTIFY totalChanged)
    // Newest first: [{id, name, dateText, freedText, trashed, restored, restorable}]. Only a clean
    // that went to the Trash and kept where its items went can be put back.
    Q_PROPERTY(QVariantList history READ history NOTIFY historyChanged)
    Q_PROPERTY(int count READ count NOTIFY historyChanged)
    // "Version 1.2 (345)", from the values the build was given.
    Q_PROPERTY(QString versionText READ versionText CONSTANT)

public:
    explicit AboutModel(QObject* parent = nullptr);

    static constexpr const char* website = "https://mopwell.org";

    AppModel* model() const { return model_; }
    void setModel(AppModel* model);
    QString totalText() const;
    QVariantList history() const;
    int count() const;
    static QString versionText();

    // Puts the clean with this id back; a clean already put back, or one no longer in the
    // history, is left alone.
    Q_INVOKABLE void restore(const QString& id);
    // Empties the list; the lifetime total stays.
    Q_INVOKABLE void clear();
    Q_INVOKABLE bool openTrash() const;
    Q_INVOKABLE bool openWebsite() const;

signals:
    void modelChanged();
    void totalChanged();
    void historyChanged();

private:
    QPointer<AppModel> model_;
};

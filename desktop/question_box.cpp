#include "desktop/question_box.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

Answer AskInBox(const Question& question) {
    QMessageBox box(QMessageBox::Question, QString::fromStdString(question.title),
                    QString::fromStdString(question.text), QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    const QPushButton* const yes =
        box.addButton(QString::fromStdString(question.yes), QMessageBox::AcceptRole);
    QPushButton* const no = box.addButton(QString::fromStdString(question.no), QMessageBox::RejectRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    if (!question.tick.empty()) box.setCheckBox(new QCheckBox(QString::fromStdString(question.tick), &box));
    box.exec();
    const QCheckBox* const tick = box.checkBox();
    return {box.clickedButton() == yes, tick != nullptr && tick->isChecked()};
}

#include "apps/demo/QtDemoPrompts.h"

#include <QFileDialog>
#include <QMessageBox>

namespace {

QString FromPath(const std::string& path) {
    return QString::fromLocal8Bit(path.data(), static_cast<qsizetype>(path.size()));
}

std::string ToPath(const QString& path) {
    return path.toLocal8Bit().toStdString();
}

}  // namespace

IDemoPrompts::EAnswer CQtDemoPrompts::AskSaveChanges(const std::string& strTitle) {
    QMessageBox::StandardButton answer = QMessageBox::question(
        m_pParent, "Save changes",
        QString("Save the changes to %1?").arg(QString::fromStdString(strTitle)),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save) return EAnswer::Save;
    if (answer == QMessageBox::Discard) return EAnswer::Discard;
    return EAnswer::Cancel;
}

std::string CQtDemoPrompts::AskOpenPath() {
    return ToPath(QFileDialog::getOpenFileName(m_pParent, "Open"));
}

std::string CQtDemoPrompts::AskSavePath(const std::string& strSuggested) {
    return ToPath(QFileDialog::getSaveFileName(m_pParent, "Save As", FromPath(strSuggested)));
}

void CQtDemoPrompts::Tell(const std::string& strTitle, const std::string& strText) {
    QMessageBox::warning(m_pParent, QString::fromStdString(strTitle),
                         QString::fromLocal8Bit(strText.data(),
                                                static_cast<qsizetype>(strText.size())));
}

bool CQtDemoPrompts::Confirm(const std::string& strTitle, const std::string& strText) {
    return QMessageBox::question(
               m_pParent, QString::fromStdString(strTitle),
               QString::fromLocal8Bit(strText.data(), static_cast<qsizetype>(strText.size())),
               QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Ok;
}

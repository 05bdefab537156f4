// A small query view: the sample entries in a list, and a filter that takes a qualifier in its
// encoded text, shows the qualifier's display text and keeps the entries it matches.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "vxutil/foundation/CVXFieldValueList.h"

class QLabel;
class QLineEdit;
class QTreeWidget;

class QueryView final : public QWidget {
    Q_OBJECT
public:
    explicit QueryView(QWidget* parent = nullptr);

    void SetFilter(const QString& encoded);
    int ShownEntries() const;

private:
    void ApplyFilter();

    QLineEdit* m_filter;
    QLabel* m_condition;
    QTreeWidget* m_entries;
    std::vector<std::unique_ptr<CVXFieldValueList>> m_data;
};

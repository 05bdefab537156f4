#include "QueryView.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "SampleEntries.h"
#include "vxutil/decor/qt/RDialogBar.h"
#include "vxutil/foundation/CVXQualifierStruct.h"
#include "vxutil/runtime/qt/QtText.h"

QueryView::QueryView(QWidget* parent)
    : QWidget(parent),
      m_filter(new QLineEdit(this)),
      m_condition(new QLabel(this)),
      m_entries(new QTreeWidget(this)),
      m_data(MakeSampleEntries()) {
    auto* bar = new RDialogBar(this);
    bar->SetDisplayText("Requests");
    m_filter->setPlaceholderText(QStringLiteral("an encoded qualifier, e.g. 4\\1\\1\\4\\2\\2\\3"));
    m_filter->setClearButtonEnabled(true);
    m_condition->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QStringList headers;
    for (const SampleField& field : SampleFields())
        headers << field.label;
    m_entries->setHeaderLabels(headers);
    m_entries->setRootIsDecorated(false);
    m_entries->setAlternatingRowColors(true);
    m_entries->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    auto* filterForm = new QFormLayout;
    filterForm->addRow(QStringLiteral("&Filter:"), m_filter);
    filterForm->addRow(QStringLiteral("Condition:"), m_condition);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(bar);
    layout->addLayout(filterForm);
    layout->addWidget(m_entries, 1);
    connect(m_filter, &QLineEdit::textChanged, this, &QueryView::ApplyFilter);
    ApplyFilter();
}

void QueryView::SetFilter(const QString& encoded) {
    m_filter->setText(encoded);
}

int QueryView::ShownEntries() const {
    return m_entries->topLevelItemCount();
}

void QueryView::ApplyFilter() {
    CVXQualifierStruct condition;
    const CGNString encoded = vx::FromQString(m_filter->text().trimmed());
    const char* cursor = encoded.c_str();
    if (!encoded.IsEmpty() && (!condition.Decode(cursor) || *cursor != '\0')) {
        m_condition->setText(QStringLiteral("not a qualifier in encoded text: every entry shown"));
        condition = CVXQualifierStruct();
    } else {
        CGNString text;
        condition.ToText(text);
        m_condition->setText(text.IsEmpty() ? QStringLiteral("(every entry)")
                                            : vx::ToQString(text));
    }
    m_entries->clear();
    for (const auto& entry : m_data) {
        bool matches = false;
        if (!condition.Evaluate(entry.get(), matches) || !matches) continue;
        QStringList cells;
        for (const SampleField& field : SampleFields()) {
            const CVXValueStruct* value = entry->FindFieldValue(field.id);
            cells << (value != nullptr ? DisplayText(*value) : QString());
        }
        auto* item = new QTreeWidgetItem(m_entries, cells);
        item->setTextAlignment(4, Qt::AlignRight | Qt::AlignVCenter);
    }
}

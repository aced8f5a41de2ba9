#include "data/Assert.h"
#include "data/words/Csv.h"
#include "demo/DemoParts.h"

#include <QFile>

namespace orvane {

QVector<QStringList> demoFacts(const QString& name) {
    QFile file(QStringLiteral(":/demo/%1.csv").arg(name));
    ORVANE_ASSERT(file.open(QIODevice::ReadOnly));
    CsvReader reader(file.readAll());
    reader.next(); // heads
    QVector<QStringList> facts;
    while (const auto record = reader.next()) {
        QStringList fields;
        for (const CsvField& field : record->fields)
            fields.append(field.text);
        facts.append(fields);
    }
    ORVANE_ASSERT(!reader.fault());
    return facts;
}

void addRow(Recordset& rows, const RowValues& values) {
    rows.addNew();
    for (const auto& [column, value] : values)
        rows.set(QString::fromLatin1(column), value);
    rows.update();
}

QVector<DemoEmployee> DemoHospital::employeesOf(const QString& department) const {
    QVector<DemoEmployee> found;
    for (const DemoEmployee& employee : employees)
        if (employee.department == department)
            found.append(employee);
    return found;
}

QString DemoHospital::clientName(const QString& id) const {
    for (const DemoClient& client : clients)
        if (client.id == id)
            return client.name;
    return {};
}

} // namespace orvane

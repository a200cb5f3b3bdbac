#include "windows/contacts/Table_Page.h"

#include "list/Country_Codes.h"
#include "texts/Reading_Language.h"
#include "toolkit/List_Tables.h"
#include "ui_Table_Page.h"
#include "windows/contacts/Sample_Rows.h"

#include <QCollator>
#include <QHeaderView>
#include <QLocale>
#include <QSignalBlocker>
#include <QStringListModel>
#include <algorithm>

namespace {

// The widespread ones.
const char* const Encodings[] = {"UTF-8",        "UTF-16",       "windows-1252", "windows-1250", "windows-1251",
                                 "windows-1253", "windows-1254", "windows-1257", "ISO-8859-2",   "ISO-8859-15",
                                 "KOI8-R",       "IBM850",       "macintosh",    "GB18030",      "Shift_JIS"};

// Chooses the entry with this data, which is added where it is missing.
void Choose(QComboBox& box, const QString& data)
{
    const QSignalBlocker muted(box);
    int index = box.findData(data, Qt::UserRole, Qt::MatchFixedString);
    if (index < 0 && !data.isEmpty()) {
        box.addItem(data, data);
        index = box.count() - 1;
    }
    box.setCurrentIndex(index);
}

QString Letters_Of_Locale()
{
    return QLocale::territoryToCode(QLocale::system().territory());
}

QString Sizes_In_Words(const QString& name, const Contact_Table& table)
{
    const QString rows =
        table.Row_Count() == 1 ? Table_Page::tr("1 row") : Table_Page::tr("%n rows", nullptr, table.Row_Count());
    const int columns = table.Column_Count();
    return columns == 1 ? Table_Page::tr("%1: %2 in 1 column.").arg(name, rows)
                        : Table_Page::tr("%1: %2 in %n columns.", nullptr, columns).arg(name, rows);
}

QString Guess_In_Words(const Table_Facts& facts)
{
    return facts.encoding_is_told
               ? QString()
               : u' ' + Table_Page::tr("The file does not tell its encoding: look whether the letters are right.");
}

} // namespace

Table_Page::Table_Page(QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::Table_Page>()), m_sample(new Sample_Rows(this))
{
    m_ui->setupUi(this);
    Prepare_List_Table(*m_ui->_Sample, *m_sample);
    m_ui->_Sample->horizontalHeader()->setDefaultSectionSize(fontMetrics().averageCharWidth() * 20);
    Offer_Ways_Of_Reading();
    Offer_Countries();
    Connect_Controls();
}

Table_Page::~Table_Page() = default;

void Table_Page::Offer_Ways_Of_Reading()
{
    for (const char* name : Encodings)
        m_ui->_Encoding->addItem(QLatin1String(name), QLatin1String(name));
    const std::pair<QString, QString> delimiters[] = {{tr("Comma"), QStringLiteral(",")},
                                                      {tr("Semicolon"), QStringLiteral(";")},
                                                      {tr("Tab"), QStringLiteral("\t")},
                                                      {tr("Bar"), QStringLiteral("|")}};
    for (const auto& [name, delimiter] : delimiters)
        m_ui->_Delimiter->addItem(name, delimiter);
}

void Table_Page::Offer_Countries()
{
    std::vector<std::pair<QString, QString>> countries;
    for (const Country& country : All_Countries())
        countries.emplace_back(QStringLiteral("%1 (+%2)").arg(country.Name(), QLatin1String(country.code)),
                               QLatin1String(country.letters));
    const QCollator order(Reading_Language::Locale());
    std::sort(countries.begin(), countries.end(),
              [&](const auto& one, const auto& other) { return order.compare(one.first, other.first) < 0; });
    m_ui->_Country->addItem(tr("As written"), QString());
    for (const auto& [name, letters] : countries)
        m_ui->_Country->addItem(name, letters);
    m_ui->_Country->setCurrentIndex(std::max(0, m_ui->_Country->findData(Letters_Of_Locale())));
}

void Table_Page::Connect_Controls()
{
    for (QComboBox* box : {m_ui->_Encoding, m_ui->_Delimiter, m_ui->_Sheet})
        connect(box, &QComboBox::currentIndexChanged, this, &Table_Page::Ask_To_Read);
    connect(m_ui->_Names_Chk, &QCheckBox::toggled, this, &Table_Page::Ask_To_Read);
    connect(m_ui->_Number_Column, &QComboBox::currentIndexChanged, this, &Table_Page::Choose_Number_Column);
    connect(m_ui->_Sample->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { m_ui->_Number_Column->setCurrentIndex(column + m_choices_before_columns); });
}

void Table_Page::Ask_To_Read()
{
    Table_Choices choices;
    if (!m_ui->_Encoding->isHidden())
        choices.encoding = m_ui->_Encoding->currentData().toString();
    const QString delimiter = m_ui->_Delimiter->currentData().toString();
    if (!m_ui->_Delimiter->isHidden() && !delimiter.isEmpty())
        choices.delimiter = delimiter.front().toLatin1();
    if (!m_ui->_Sheet->isHidden())
        choices.sheet = m_ui->_Sheet->currentText();
    choices.has_no_names = !m_ui->_Names_Chk->isHidden() && !m_ui->_Names_Chk->isChecked();
    Q_EMIT Read_Otherwise(choices);
}

// ------------------------------------------------------------------------------------------------- what was read

void Table_Page::Show_Reading(const QString& name, bool is_new)
{
    m_table.reset();
    m_sample->Take({});
    if (is_new) {
        Show_Choices(false, false, false);
        const QSignalBlocker muted(m_ui->_Number_Column);
        m_ui->_Number_Column->clear();
    }
    Say(tr("Reading %1 ...").arg(name), {});
    Q_EMIT Choice_Changed();
}

void Table_Page::Show_Contacts(const QString& name, const Contact_Reading& reading)
{
    m_table = reading.table;
    Show_Way_Of_Reading(reading);
    m_sample->Take(m_table);
    Show_Columns(reading);
    if (!m_table)
        Say(tr("%1 can not be used: %2.").arg(name, reading.trouble), {});
    else if (m_table->Row_Count() == 0)
        Say(tr("%1 holds no rows below the names of its columns.").arg(name), {});
    else
        Say(Sizes_In_Words(name, *m_table) + Guess_In_Words(reading.facts),
            reading.number_column < 0 ? tr("No column looks as if it held numbers. Choose the one that does.")
                                      : QString());
    Choose_Number_Column();
}

// What cannot be read keeps the choices that it was read with, so that they can be made otherwise.
void Table_Page::Show_Way_Of_Reading(const Contact_Reading& reading)
{
    const Table_Facts& facts = reading.facts;
    const bool is_text = facts.format == u"CSV";
    const bool is_sheet = !facts.sheets.isEmpty();
    if (reading.table || is_sheet)
        Show_Choices(!facts.encoding.isEmpty(), is_text, is_sheet);
    else if (m_ui->_Names_Chk->isHidden())
        Show_Choices(reading.is_file, false, false);
    if (reading.table || m_ui->_Names_Chk->isHidden())
        Choose(*m_ui->_Encoding, facts.encoding);
    if (is_text)
        Choose(*m_ui->_Delimiter, facts.delimiter == u"tab" ? QStringLiteral("\t") : facts.delimiter);
    if (is_sheet) {
        const QSignalBlocker muted(m_ui->_Sheet);
        m_ui->_Sheet->clear();
        m_ui->_Sheet->addItems(facts.sheets);
        m_ui->_Sheet->setCurrentIndex(static_cast<int>(facts.sheets.indexOf(facts.sheet)));
    }
    const QSignalBlocker muted(m_ui->_Names_Chk);
    m_ui->_Names_Chk->setChecked(!reading.has_no_names);
}

void Table_Page::Show_Choices(bool encoding, bool delimiter, bool sheet)
{
    m_ui->encoding_caption->setVisible(encoding);
    m_ui->_Encoding->setVisible(encoding);
    m_ui->delimiter_caption->setVisible(delimiter);
    m_ui->_Delimiter->setVisible(delimiter);
    m_ui->sheet_caption->setVisible(sheet);
    m_ui->_Sheet->setVisible(sheet);
    m_ui->_Names_Chk->setVisible(delimiter || sheet);
}

// All at once: there may be thousands.
void Table_Page::Show_Columns(const Contact_Reading& reading)
{
    const QSignalBlocker muted(m_ui->_Number_Column);
    m_ui->_Number_Column->clear();
    m_choices_before_columns = 0;
    if (!m_table)
        return;
    QStringList entries;
    if (reading.facts.format == u"vCard")
        entries << tr("One for each person, mobile ones first") << tr("Each number of a person");
    m_choices_before_columns = static_cast<int>(entries.size());
    m_likeliest_column = reading.number_column;
    m_ui->_Number_Column->addItems(entries + m_table->Columns());
    m_ui->_Number_Column->setCurrentIndex(entries.isEmpty() ? reading.number_column : 0);
}

void Table_Page::Choose_Number_Column()
{
    m_sample->Mark(Number_Column());
    Q_EMIT Choice_Changed();
}

// ------------------------------------------------------------------------------------------------- what is chosen

bool Table_Page::Is_Ready() const
{
    return m_table && m_table->Row_Count() > 0 && Number_Column() >= 0;
}

int Table_Page::Number_Column() const
{
    const int entry = m_ui->_Number_Column->currentIndex();
    return entry >= 0 && entry < m_choices_before_columns ? m_likeliest_column
                                                          : std::max(-1, entry - m_choices_before_columns);
}

bool Table_Page::Wants_Each_Number() const
{
    return m_choices_before_columns > 0 && m_ui->_Number_Column->currentIndex() == 1;
}

const Country* Table_Page::Chosen_Country() const
{
    return Country_With_Letters(m_ui->_Country->currentData().toString());
}

void Table_Page::Say(const QString& words, const QString& trouble)
{
    m_ui->_Words->setText(words);
    m_ui->_Trouble->setText(trouble);
    m_ui->_Trouble->setVisible(!trouble.isEmpty());
}

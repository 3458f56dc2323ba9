#include "refhost/validator/CheckRow.h"

namespace {

class RowCheck final : public Check
{
public:
    explicit RowCheck(const CheckRow &row)
        : Check(row.info)
        , m_run(row.run)
        , m_loadsPlugin(row.loadsPlugin)
    {
    }

    Outcome run(CheckContext &context) const override { return m_run(context); }

    std::optional<QString> prepare(CheckContext &context) const override
    {
        return m_loadsPlugin ? std::nullopt : Check::prepare(context);
    }

private:
    Outcome (*m_run)(CheckContext &context);
    bool m_loadsPlugin;
};

} // namespace

void addRows(std::vector<std::unique_ptr<Check>> &checks, const std::vector<CheckRow> &rows)
{
    for (const CheckRow &row : rows)
        checks.push_back(std::make_unique<RowCheck>(row));
}

#include "lisp/Value.h"

#include <utility>

#include "lisp/Function.h"

namespace tavrin::lisp {

namespace {

// Evaluation is single-threaded.
std::size_t heldBytes = 0;

constexpr std::size_t kHeapOverhead = 4 * sizeof(void*);  // bookkeeping of the heap and of std::shared_ptr

}  // namespace

// A text of a value; its memory is counted.
class CHeldText {
public:
    explicit CHeldText(std::wstring text) : m_text(std::move(text)) { heldBytes += Size(); }
    ~CHeldText() { heldBytes -= Size(); }
    CHeldText(const CHeldText&) = delete;
    CHeldText& operator=(const CHeldText&) = delete;

    const std::wstring& Text() const { return m_text; }

private:
    std::size_t Size() const {
        return sizeof(CHeldText) + kHeapOverhead + m_text.capacity() * sizeof(wchar_t);
    }

    const std::wstring m_text;
};

class CPair {
public:
    CPair(CValue car, CValue cdr, SourceLine line)
        : m_car(std::move(car)), m_cdr(std::move(cdr)), m_line(line) {
        heldBytes += kSize;
    }
    ~CPair();
    CPair(const CPair&) = delete;
    CPair& operator=(const CPair&) = delete;

    const CValue& Car() const { return m_car; }
    const CValue& Cdr() const { return m_cdr; }
    SourceLine Line() const { return m_line; }

private:
    friend class CValue;

    static const std::size_t kSize;

    CValue m_car;
    CValue m_cdr;
    SourceLine m_line;
};

const std::size_t CPair::kSize = sizeof(CPair) + kHeapOverhead;

CPair::~CPair() {
    heldBytes -= kSize;
    std::vector<CValue> parts;
    for (CValue* part : {&m_car, &m_cdr}) {
        if (part->Type() == VT_PAIR || part->Type() == VT_FUNCTION) {
            parts.push_back(std::move(*part));
        }
    }
    CValue::Release(parts);
}

FunctionObject::~FunctionObject() {
    if (auto* definition = std::get_if<Definition>(&code)) {
        std::vector<CValue> parts;
        parts.push_back(std::move(definition->body));
        CValue::Release(parts);
    }
}

// Destroys parts that are not shared in a loop: the members' own destructors would recurse once per list
// element and overflow the stack on a long list.
void CValue::Release(std::vector<CValue>& parts) {
    while (!parts.empty()) {
        CValue part = std::move(parts.back());
        parts.pop_back();
        part.MovePartsTo(parts);
    }
}

void CValue::MovePartsTo(std::vector<CValue>& parts) {
    if (Type() == VT_PAIR) {
        const auto& pair = std::get<VT_PAIR>(m_data);
        if (pair.use_count() == 1) {
            parts.push_back(std::move(pair->m_car));
            parts.push_back(std::move(pair->m_cdr));
        }
    } else if (Type() == VT_FUNCTION) {
        const auto& function = std::get<VT_FUNCTION>(m_data);
        auto* definition = std::get_if<Definition>(&function->code);
        if (definition != nullptr && function.use_count() == 1) {
            parts.push_back(std::move(definition->body));
        }
    }
}

// Out of line, since they are long and used everywhere.
CValue::CValue() noexcept = default;
CValue::CValue(const CValue& other) = default;
CValue::CValue(CValue&& other) noexcept : m_data(std::exchange(other.m_data, {})) {}
CValue& CValue::operator=(const CValue& other) = default;
CValue& CValue::operator=(CValue&& other) noexcept {
    m_data = std::exchange(other.m_data, {});
    return *this;
}
CValue::~CValue() = default;

CValue CValue::Integer(std::int32_t number) {
    CValue value;
    value.m_data = number;
    return value;
}

CValue CValue::Real(double number) {
    CValue value;
    value.m_data = number;
    return value;
}

CValue CValue::String(std::wstring text) {
    CValue value;
    value.m_data = StringData{std::make_shared<const CHeldText>(std::move(text))};
    return value;
}

CValue CValue::Symbol(std::wstring_view name) {
    CValue value;
    std::wstring upperCase = UpperCase(name);
    if (upperCase != L"NIL") {
        value.m_data = SymbolData{std::make_shared<const CHeldText>(std::move(upperCase))};
    }
    return value;
}

CValue CValue::Pair(CValue car, CValue cdr, SourceLine line) {
    CValue value;
    value.m_data = std::make_shared<CPair>(std::move(car), std::move(cdr), line);
    return value;
}

CValue CValue::List(std::span<const CValue> elements, CValue tail, SourceLine line) {
    for (std::size_t i = elements.size(); i-- > 0;) {
        tail = Pair(elements[i], std::move(tail), i == 0 ? line : SourceLine{});
    }
    return tail;
}

CValue CValue::Function(std::shared_ptr<FunctionObject> function) {
    CValue value;
    value.m_data = std::move(function);
    return value;
}

CValue CValue::File(std::shared_ptr<CLispFile> file) {
    CValue value;
    value.m_data = std::move(file);
    return value;
}

CValue CValue::True() {
    static const CValue truth = Symbol(L"T");
    return truth;
}

CValue CValue::Truth(bool holds) {
    return holds ? True() : CValue();
}

bool CValue::IsSymbol(std::wstring_view upperCaseName) const {
    return Type() == VT_SYMBOL && AsSymbol() == upperCaseName;
}

std::size_t CValue::HeldBytes() {
    return heldBytes;
}

const std::wstring& CValue::AsString() const {
    return std::get<VT_STRING>(m_data).text->Text();
}

const std::wstring& CValue::AsSymbol() const {
    return std::get<VT_SYMBOL>(m_data).name->Text();
}

const CValue& CValue::Car() const {
    return std::get<VT_PAIR>(m_data)->Car();
}

const CValue& CValue::Cdr() const {
    return std::get<VT_PAIR>(m_data)->Cdr();
}

SourceLine CValue::Line() const {
    return std::get<VT_PAIR>(m_data)->Line();
}

bool CValue::IsSameAs(const CValue& other) const {
    if (Type() != other.Type()) {
        return false;
    }
    switch (Type()) {
        case VT_INTEGER:
            return AsInteger() == other.AsInteger();
        case VT_REAL:
            return AsReal() == other.AsReal();
        case VT_STRING:
            return &AsString() == &other.AsString();
        case VT_SYMBOL:
            return AsSymbol() == other.AsSymbol();
        case VT_PAIR:
            return std::get<VT_PAIR>(m_data) == std::get<VT_PAIR>(other.m_data);
        case VT_FUNCTION:
            return std::get<VT_FUNCTION>(m_data) == std::get<VT_FUNCTION>(other.m_data);
        case VT_FILE:
            return std::get<VT_FILE>(m_data) == std::get<VT_FILE>(other.m_data);
        default:
            return true;
    }
}

std::wstring UpperCase(std::wstring_view name) {
    std::wstring result(name);
    for (wchar_t& c : result) {
        if (c >= L'a' && c <= L'z') {
            c = static_cast<wchar_t>(c - L'a' + L'A');
        }
    }
    return result;
}

}  // namespace tavrin::lisp

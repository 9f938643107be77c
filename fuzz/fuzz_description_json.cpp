// Fuzz target: the JSON description reader the stitch runs next to every
// project, over the bytes of a file as read() sees them. A description that
// reads is written (as write() does) and read again to the same description;
// links name existing stacks and the lens is one of the three models.
#include "DescriptionJson.h"
#include "FuzzCheck.h"

#include <QByteArray>
#include <QJsonDocument>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    StructuredPanoramaProperties description;
    description.m_text1 = QStringLiteral("untouched");
    QString error;
    if (!DescriptionJson::parse(bytes, &description, &error)) {
        FUZZ_CHECK(!error.isEmpty());
        // A description that does not read is left as it was.
        FUZZ_CHECK(description.m_text1 == QLatin1String("untouched"));
        FUZZ_CHECK(description.m_stacks.isEmpty());
        return 0;
    }

    for (const AuthorizedLink& link : description.m_links) {
        for (const int index : link.m_stackIndices)
            FUZZ_CHECK(index >= 0 && index < description.m_stacks.size());
    }
    FUZZ_CHECK(description.m_lensModel >= -1 && description.m_lensModel <= 1);

    // Written as write() writes it, then read again: the same description.
    const QJsonObject object = DescriptionJson::toJson(description);
    const QByteArray written = QJsonDocument(object).toJson(QJsonDocument::Indented);
    StructuredPanoramaProperties again;
    if (!DescriptionJson::parse(written, &again, &error)) {
        std::fprintf(stderr, "does not read again: %s\n", qPrintable(error));
        FUZZ_CHECK(false);
    }
    FUZZ_CHECK(DescriptionJson::toJson(again) == object);
    FUZZ_CHECK(again.m_stacks == description.m_stacks);
    FUZZ_CHECK(again.m_yaw.size() == description.m_yaw.size());
    FUZZ_CHECK(again.m_links.size() == description.m_links.size());
    return 0;
}

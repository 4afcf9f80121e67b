// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/DisplayColorConversion.h"

#include <lcms2.h>

namespace {

// littleCMS reports why it refused a profile through the context's error handler.
void keepError(cmsContext context, cmsUInt32Number, const char *text)
{
    auto *failure = static_cast<QString *>(cmsGetContextUserData(context));
    if (failure && failure->isEmpty())
        *failure = QString::fromUtf8(text);
}

class LcmsColorConversion : public DisplayColorConversion {
public:
    LcmsColorConversion(cmsContext context, cmsHTRANSFORM transform)
        : m_context(context)
        , m_transform(transform)
    {
    }
    ~LcmsColorConversion() override
    {
        cmsDeleteTransform(m_transform);
        cmsDeleteContext(m_context);
    }

    SamplerGeometry::Rgb toSrgb(const SamplerGeometry::Rgb &pixel) const override
    {
        const double in[3] = { pixel.red, pixel.green, pixel.blue };
        double out[3] = {};
        cmsDoTransform(m_transform, in, out, 1);
        return { out[0], out[1], out[2] };
    }

private:
    cmsContext m_context;
    cmsHTRANSFORM m_transform;
};

} // namespace

DisplayColorConversion::Built DisplayColorConversion::fromIccProfile(const QByteArray &profile)
{
    QString failure;
    const cmsContext context = cmsCreateContext(nullptr, &failure);
    cmsSetLogErrorHandlerTHR(context, keepError);
    // The handler writes into `failure`, which lives only for this call.
    const auto fail = [&](const QString &reason) {
        cmsSetLogErrorHandlerTHR(context, nullptr);
        cmsDeleteContext(context);
        return Built { nullptr, failure.isEmpty() ? reason : reason + QStringLiteral(" (") + failure + u')' };
    };
    const cmsHPROFILE display
        = cmsOpenProfileFromMemTHR(context, profile.constData(), cmsUInt32Number(profile.size()));
    if (!display)
        return fail(QStringLiteral("not a readable ICC profile"));
    if (cmsGetColorSpace(display) != cmsSigRgbData || cmsGetDeviceClass(display) != cmsSigDisplayClass) {
        cmsCloseProfile(display);
        return fail(QStringLiteral("not an RGB display profile"));
    }
    const cmsHPROFILE srgb = cmsCreate_sRGBProfileTHR(context);
    // Floating point both ways, with no cache and no precalculated shortcut: colours the monitor shows
    // beyond sRGB keep their components outside 0...1.
    const cmsHTRANSFORM transform = cmsCreateTransformTHR(context, display, TYPE_RGB_DBL, srgb, TYPE_RGB_DBL,
        INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE);
    cmsCloseProfile(srgb);
    cmsCloseProfile(display);
    if (!transform)
        return fail(QStringLiteral("no conversion to sRGB"));
    cmsSetLogErrorHandlerTHR(context, nullptr);
    return Built { std::make_unique<LcmsColorConversion>(context, transform), QString() };
}

// SPDX-License-Identifier: BSD-3-Clause
//
// A simulated phone's cameras: a test picture in which a ball moves, and a light that is written into a file.

#include <QAbstractVideoSurface>
#include <QCamera>
#include <QCameraControl>
#include <QCameraFlashControl>
#include <QCameraInfoControl>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMediaService>
#include <QMediaServiceProviderPlugin>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVideoDeviceSelectorControl>
#include <QVideoFrame>
#include <QVideoRendererControl>
#include <QVideoSurfaceFormat>

namespace
{
// A camera is there as long as its file is; the file says "works", "frozen" or "dark".
const QString Folder = QStringLiteral("/run/kiv-phone/cameras/");
const QList<QByteArray> Names{QByteArrayLiteral("back"), QByteArrayLiteral("front")};
constexpr int FrameMs = 66;
const QSize Size(640, 480);

QByteArray stateOf(const QByteArray &name)
{
    QFile file(Folder + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

QList<QByteArray> camerasThatAreThere()
{
    QList<QByteArray> there;
    for (const QByteArray &name : Names) {
        if (!stateOf(name).isEmpty())
            there.append(name);
    }
    return there;
}

QCamera::Position positionOf(const QByteArray &camera)
{
    return camera == "front" ? QCamera::FrontFace : camera == "back" ? QCamera::BackFace : QCamera::UnspecifiedPosition;
}

/*!
 * Mounted so that the picture stands upright on a phone that is held so. An X server says of every screen that it lies,
 * and Qt turns the picture accordingly.
 */
int orientationOf(const QByteArray &camera)
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    const int turned = screen->angleBetween(screen->nativeOrientation(), screen->orientation());
    return positionOf(camera) == QCamera::FrontFace ? (360 - turned) % 360 : turned;
}

class Renderer : public QVideoRendererControl
{
    Q_OBJECT

public:
    explicit Renderer(QObject *parent) : QVideoRendererControl(parent) { }

    QAbstractVideoSurface *surface() const override { return m_surface; }
    void setSurface(QAbstractVideoSurface *surface) override
    {
        stop();
        m_surface = surface;
    }

    void show(const QImage &picture)
    {
        if (!m_surface)
            return;
        if (!m_surface->isActive() && !m_surface->start(QVideoSurfaceFormat(picture.size(), QVideoFrame::Format_RGB32)))
            return;
        m_surface->present(QVideoFrame(picture));
    }

    void stop()
    {
        if (m_surface && m_surface->isActive())
            m_surface->stop();
    }

private:
    QAbstractVideoSurface *m_surface = nullptr;
};

class Selector : public QVideoDeviceSelectorControl
{
    Q_OBJECT

public:
    explicit Selector(QObject *parent) : QVideoDeviceSelectorControl(parent) { }

    int deviceCount() const override { return Names.size(); }
    QString deviceName(int index) const override { return QString::fromLatin1(Names.at(index)); }
    QString deviceDescription(int index) const override { return deviceName(index); }
    int defaultDevice() const override { return 0; }
    int selectedDevice() const override { return m_selected; }
    void setSelectedDevice(int index) override
    {
        m_selected = index;
        Q_EMIT selectedDeviceChanged(index);
        Q_EMIT selectedDeviceChanged(deviceName(index));
    }

    QByteArray name() const { return Names.value(m_selected); }

private:
    int m_selected = 0;
};

class Flash : public QCameraFlashControl
{
    Q_OBJECT

public:
    explicit Flash(Selector *selector, QObject *parent) : QCameraFlashControl(parent), m_selector(selector) { }

    QCameraExposure::FlashModes flashMode() const override { return m_mode; }
    void setFlashMode(QCameraExposure::FlashModes mode) override
    {
        if (!isFlashModeSupported(mode))
            return;
        m_mode = mode;
        QFile light(Folder + QStringLiteral("light-") + QString::fromLatin1(m_selector->name()));
        if (light.open(QIODevice::WriteOnly | QIODevice::Truncate))
            light.write(mode == QCameraExposure::FlashTorch ? "on\n" : "off\n");
    }
    bool isFlashModeSupported(QCameraExposure::FlashModes mode) const override
    {
        return mode == QCameraExposure::FlashOff || (mode == QCameraExposure::FlashTorch && isFlashReady());
    }
    bool isFlashReady() const override { return m_selector->name() == "back"; }

private:
    Selector *const m_selector;
    QCameraExposure::FlashModes m_mode = QCameraExposure::FlashOff;
};

class Control : public QCameraControl
{
    Q_OBJECT

public:
    Control(Selector *selector, Renderer *renderer, QObject *parent)
        : QCameraControl(parent), m_selector(selector), m_renderer(renderer)
    {
        m_clock.setInterval(FrameMs);
        connect(&m_clock, &QTimer::timeout, this, &Control::takePicture);
    }

    QCamera::State state() const override { return m_state; }
    void setState(QCamera::State state) override
    {
        if (m_state == state)
            return;
        m_state = state;
        if (state == QCamera::ActiveState) {
            m_clock.start();
        } else {
            m_clock.stop();
            m_renderer->stop();
        }
        Q_EMIT stateChanged(state);
        Q_EMIT statusChanged(status());
    }
    QCamera::Status status() const override
    {
        return m_state == QCamera::ActiveState ? QCamera::ActiveStatus
            : m_state == QCamera::LoadedState  ? QCamera::LoadedStatus
                                               : QCamera::UnloadedStatus;
    }
    QCamera::CaptureModes captureMode() const override { return m_mode; }
    void setCaptureMode(QCamera::CaptureModes mode) override
    {
        m_mode = mode;
        Q_EMIT captureModeChanged(mode);
    }
    bool isCaptureModeSupported(QCamera::CaptureModes mode) const override
    {
        return mode == QCamera::CaptureViewfinder;
    }
    bool canChangeProperty(PropertyChangeType, QCamera::Status) const override { return true; }

private:
    void takePicture()
    {
        const QByteArray state = stateOf(m_selector->name());
        if (state == "dark" || state.isEmpty())
            return;
        if (state != "frozen")
            ++m_moment;
        QImage picture(Size, QImage::Format_RGB32);
        QPainter painter(&picture);
        const QColor colours[] = {Qt::white,   Qt::yellow, Qt::cyan, Qt::green,
                                  Qt::magenta, Qt::red,    Qt::blue, Qt::black};
        const int width = Size.width() / 8;
        for (int bar = 0; bar < 8; ++bar)
            painter.fillRect(bar * width, 0, width, Size.height(), colours[bar]);
        painter.setPen(QPen(Qt::black, 4));
        painter.setBrush(Qt::gray);
        const int way = 2 * (Size.width() - 120);
        const int at = m_moment * 8 % way;
        painter.drawEllipse(at < way / 2 ? at : way - at, 180, 120, 120);
        painter.end();
        m_renderer->show(picture);
    }

    Selector *const m_selector;
    Renderer *const m_renderer;
    QTimer m_clock;
    QCamera::State m_state = QCamera::UnloadedState;
    QCamera::CaptureModes m_mode = QCamera::CaptureViewfinder;
    int m_moment = 0;
};

class Info : public QCameraInfoControl
{
    Q_OBJECT

public:
    explicit Info(QObject *parent) : QCameraInfoControl(parent) { }

    QCamera::Position cameraPosition(const QString &device) const override { return positionOf(device.toLatin1()); }
    int cameraOrientation(const QString &device) const override { return orientationOf(device.toLatin1()); }
};

class CameraService : public QMediaService
{
    Q_OBJECT

public:
    explicit CameraService(QObject *parent)
        : QMediaService(parent),
          m_selector(new Selector(this)),
          m_renderer(new Renderer(this)),
          m_flash(new Flash(m_selector, this)),
          m_info(new Info(this)),
          m_control(new Control(m_selector, m_renderer, this))
    {
    }

    QMediaControl *requestControl(const char *name) override
    {
        if (qstrcmp(name, QCameraControl_iid) == 0)
            return m_control;
        if (qstrcmp(name, QVideoRendererControl_iid) == 0)
            return m_renderer;
        if (qstrcmp(name, QVideoDeviceSelectorControl_iid) == 0)
            return m_selector;
        if (qstrcmp(name, QCameraFlashControl_iid) == 0)
            return m_flash;
        if (qstrcmp(name, QCameraInfoControl_iid) == 0)
            return m_info;
        return nullptr;
    }
    void releaseControl(QMediaControl *) override { }

private:
    Selector *const m_selector;
    Renderer *const m_renderer;
    Flash *const m_flash;
    Info *const m_info;
    Control *const m_control;
};
}

class Cameras : public QMediaServiceProviderPlugin,
                public QMediaServiceSupportedDevicesInterface,
                public QMediaServiceDefaultDeviceInterface,
                public QMediaServiceCameraInfoInterface
{
    Q_OBJECT
    Q_INTERFACES(
        QMediaServiceSupportedDevicesInterface QMediaServiceDefaultDeviceInterface QMediaServiceCameraInfoInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.qt.mediaserviceproviderfactory/5.0" FILE "cameras.json")

public:
    QMediaService *create(const QString &) override { return new CameraService(this); }
    void release(QMediaService *service) override { delete service; }

    QList<QByteArray> devices(const QByteArray &) const override { return camerasThatAreThere(); }
    QString deviceDescription(const QByteArray &, const QByteArray &device) override
    {
        return QString::fromLatin1(device);
    }
    QByteArray defaultDevice(const QByteArray &) const override { return camerasThatAreThere().value(0); }
    QCamera::Position cameraPosition(const QByteArray &device) const override { return positionOf(device); }
    int cameraOrientation(const QByteArray &device) const override { return orientationOf(device); }
};

#include "cameras.moc"

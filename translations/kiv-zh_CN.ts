<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="kiv-back">
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message id="kiv-reading-missing">
        <source>no reading</source>
        <translation>无读数</translation>
    </message>
    <message id="kiv-limits-range">
        <source>%1 to %2 %3</source>
        <extracomment>Limits of a reading: the lowest, the highest, the unit</extracomment>
        <translation>%1 至 %2 %3</translation>
    </message>
    <message id="kiv-limits-minimum">
        <source>at least %1 %2</source>
        <translation>至少 %1 %2</translation>
    </message>
    <message id="kiv-limits-maximum">
        <source>at most %1 %2</source>
        <translation>至多 %1 %2</translation>
    </message>
    <message id="kiv-reading-pass">
        <source>in order</source>
        <translation>正常</translation>
    </message>
    <message id="kiv-reading-near">
        <source>close to the limit</source>
        <translation>接近限值</translation>
    </message>
    <message id="kiv-reading-fail">
        <source>out of limits</source>
        <translation>超出限值</translation>
    </message>
    <message id="kiv-yes">
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message id="kiv-no">
        <source>no</source>
        <translation>否</translation>
    </message>
    <message id="kiv-verdict-passed">
        <source>Passed</source>
        <translation>合格</translation>
    </message>
    <message id="kiv-verdict-failed">
        <source>Failed</source>
        <translation>不合格</translation>
    </message>
    <message id="kiv-verdict-not-applicable">
        <source>Not applicable</source>
        <translation>不适用</translation>
    </message>
    <message id="kiv-verdict-not-tested">
        <source>Not tested</source>
        <translation>未测试</translation>
    </message>
    <message id="kiv-test-touch-self">
        <source>Touch panel self-test</source>
        <translation>触摸屏自检</translation>
    </message>
    <message id="kiv-test-touch">
        <source>Touch panel</source>
        <translation>触摸屏</translation>
    </message>
    <message id="kiv-test-multi-touch">
        <source>Several fingers</source>
        <translation>多点触控</translation>
    </message>
    <message id="kiv-test-lcd">
        <source>Display</source>
        <translation>显示屏</translation>
    </message>
    <message id="kiv-test-lcd-backlight">
        <source>Display backlight</source>
        <translation>显示屏背光</translation>
    </message>
    <message id="kiv-test-light">
        <source>Light sensor</source>
        <translation>光线传感器</translation>
    </message>
    <message id="kiv-test-prox">
        <source>Proximity sensor</source>
        <translation>距离传感器</translation>
    </message>
    <message id="kiv-test-gyro">
        <source>Gyroscope and accelerometer</source>
        <translation>陀螺仪和加速度计</translation>
    </message>
    <message id="kiv-test-ecompass">
        <source>Compass</source>
        <translation>电子罗盘</translation>
    </message>
    <message id="kiv-test-hall">
        <source>Cover magnet switch</source>
        <translation>皮套磁性开关</translation>
    </message>
    <message id="kiv-test-fingerprint">
        <source>Fingerprint reader</source>
        <translation>指纹识别器</translation>
    </message>
    <message id="kiv-test-mic-1">
        <source>Microphone 1</source>
        <translation>麦克风 1</translation>
    </message>
    <message id="kiv-test-mic-2">
        <source>Microphone 2</source>
        <translation>麦克风 2</translation>
    </message>
    <message id="kiv-test-speaker-music">
        <source>Loudspeaker music</source>
        <translation>扬声器音乐</translation>
    </message>
    <message id="kiv-test-speaker-stereo">
        <source>Loudspeaker left and right</source>
        <translation>扬声器左右声道</translation>
    </message>
    <message id="kiv-test-receiver">
        <source>Earpiece</source>
        <translation>听筒</translation>
    </message>
    <message id="kiv-test-headset-buttons">
        <source>Headset buttons</source>
        <translation>耳机按键</translation>
    </message>
    <message id="kiv-test-headset">
        <source>Headset socket</source>
        <translation>耳机插孔</translation>
    </message>
    <message id="kiv-test-headset-music">
        <source>Headset music</source>
        <translation>耳机音乐</translation>
    </message>
    <message id="kiv-test-front-camera">
        <source>Front camera</source>
        <translation>前置摄像头</translation>
    </message>
    <message id="kiv-test-back-camera">
        <source>Back camera</source>
        <translation>后置摄像头</translation>
    </message>
    <message id="kiv-test-wifi">
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message id="kiv-test-bluetooth">
        <source>Bluetooth</source>
        <translation>蓝牙</translation>
    </message>
    <message id="kiv-test-zel">
        <source>Smart cover</source>
        <translation>智能皮套</translation>
    </message>
    <message id="kiv-test-gps">
        <source>Satellite positioning</source>
        <translation>卫星定位</translation>
    </message>
    <message id="kiv-test-fm-radio">
        <source>FM radio</source>
        <translation>FM 收音机</translation>
    </message>
    <message id="kiv-test-battery">
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message id="kiv-test-usb-charging">
        <source>USB charging</source>
        <translation>USB 充电</translation>
    </message>
    <message id="kiv-test-led">
        <source>Notification light</source>
        <translation>通知指示灯</translation>
    </message>
    <message id="kiv-test-button-backlight">
        <source>Key illumination</source>
        <translation>按键背光</translation>
    </message>
    <message id="kiv-test-vibrator">
        <source>Vibrator</source>
        <translation>振动马达</translation>
    </message>
    <message id="kiv-test-sim">
        <source>SIM card</source>
        <translation>SIM 卡</translation>
    </message>
    <message id="kiv-test-sd-card">
        <source>Memory card</source>
        <translation>存储卡</translation>
    </message>
    <message id="kiv-test-key">
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message id="kiv-test-usb-otg">
        <source>USB host</source>
        <translation>USB 主机</translation>
    </message>
    <message id="kiv-test-video">
        <source>Video playback</source>
        <translation>视频播放</translation>
    </message>
    <message id="kiv-test-battery-resistance">
        <source>Battery resistance</source>
        <translation>电池内阻</translation>
    </message>
    <message id="kiv-test-suspend">
        <source>Suspend</source>
        <translation>休眠</translation>
    </message>
    <message id="kiv-test-reboot">
        <source>Restart</source>
        <translation>重启</translation>
    </message>
    <message id="kiv-test-cellular-voice">
        <source>Phone call</source>
        <translation>语音通话</translation>
    </message>
    <message id="kiv-test-cellular-data">
        <source>Mobile data</source>
        <translation>移动数据</translation>
    </message>
    <message id="kiv-test-mac-addresses">
        <source>Network addresses</source>
        <translation>网络地址</translation>
    </message>
    <message id="kiv-test-calibration">
        <source>Calibration record</source>
        <translation>校准记录</translation>
    </message>
    <message id="kiv-test-sensor-calibration">
        <source>Sensor calibration</source>
        <translation>传感器校准</translation>
    </message>
    <message id="kiv-test-system">
        <source>System state</source>
        <translation>系统状态</translation>
    </message>
    <message id="kiv-reason-reading">
        <source>%1: %2 (%3)</source>
        <extracomment>A reading that is not as it should be: its name, its value, what it should be</extracomment>
        <translation>%1：%2（%3）</translation>
    </message>
    <message id="kiv-battery-instructions">
        <source>Nothing to do: the phone reads its battery.</source>
        <translation>无需操作：手机正在读取电池数据。</translation>
    </message>
    <message id="kiv-battery-hint">
        <source>Pass unlocks when the battery has been read.</source>
        <translation>读取电池数据后才能判为合格。</translation>
    </message>
    <message id="kiv-battery-good">
        <source>Every reading with a limit is within it.</source>
        <translation>所有设有限值的读数均在限值之内。</translation>
    </message>
    <message id="kiv-battery-present">
        <source>Battery in place</source>
        <translation>电池已装入</translation>
    </message>
    <message id="kiv-battery-status">
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message id="kiv-battery-health">
        <source>Health</source>
        <translation>健康状况</translation>
    </message>
    <message id="kiv-battery-voltage">
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message id="kiv-battery-current">
        <source>Current</source>
        <translation>电流</translation>
    </message>
    <message id="kiv-battery-temperature">
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message id="kiv-battery-energy">
        <source>Energy left</source>
        <translation>剩余电量</translation>
    </message>
    <message id="kiv-battery-wear">
        <source>Capacity compared to new</source>
        <translation>容量与新电池之比</translation>
    </message>
    <message id="kiv-disclaimer-title">
        <source>Before you begin</source>
        <translation>开始之前</translation>
    </message>
    <message id="kiv-quit">
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message id="kiv-disclaimer-accept">
        <source>I have read this</source>
        <translation>我已阅读</translation>
    </message>
    <message id="kiv-ap-name">
        <source>Kiv</source>
        <translation>Kiv</translation>
    </message>
    <message id="kiv-home-subtitle">
        <source>Hardware tests</source>
        <translation>硬件测试</translation>
    </message>
    <message id="kiv-home-settings">
        <source>This phone and settings</source>
        <translation>本机与设置</translation>
    </message>
    <message id="kiv-home-question">
        <source>Which tests do you want to run?</source>
        <translation>要运行哪些测试？</translation>
    </message>
    <message id="kiv-mode-factory">
        <source>Factory sequence</source>
        <translation>工厂测试</translation>
    </message>
    <message id="kiv-mode-factory-detail">
        <source>Every part of the phone once, in a fixed order</source>
        <translation>按固定顺序将手机的每个部件测试一遍</translation>
    </message>
    <message id="kiv-mode-run-in">
        <source>Run-in</source>
        <translation>老化测试</translation>
    </message>
    <message id="kiv-mode-run-in-detail">
        <source>Endurance tests for a new phone</source>
        <translation>新手机的耐久测试</translation>
    </message>
    <message id="kiv-mode-all">
        <source>All tests</source>
        <translation>全部测试</translation>
    </message>
    <message id="kiv-mode-all-detail">
        <source>Everything this phone has, one by one or in a row</source>
        <translation>本机所有的测试，逐项或连续进行</translation>
    </message>
    <message id="kiv-list-subtitle">
        <source>%1 of %2 tests can run here</source>
        <extracomment>How many of the tests of the sequence can be run on this phone</extracomment>
        <translation>共 %2 项测试，其中 %1 项可在本机运行</translation>
    </message>
    <message id="kiv-list-absent">
        <source>Not on this phone</source>
        <translation>本机没有</translation>
    </message>
    <message id="kiv-list-unwritten">
        <source>Not available yet</source>
        <translation>尚未提供</translation>
    </message>
    <message id="kiv-summary">
        <source>Summary</source>
        <translation>汇总</translation>
    </message>
    <message id="kiv-list-continue">
        <source>Go on, %1 left</source>
        <translation>继续，剩余 %1 项</translation>
    </message>
    <message id="kiv-list-start">
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message id="kiv-settings-4g">
        <source>Modem prefers 4G</source>
        <translation>调制解调器优先使用 4G</translation>
    </message>
    <message id="kiv-settings-title">
        <source>This phone</source>
        <translation>本机</translation>
    </message>
    <message id="kiv-settings-light">
        <source>Light colours</source>
        <translation>浅色界面</translation>
    </message>
    <message id="kiv-settings-dark">
        <source>Dark colours</source>
        <translation>深色界面</translation>
    </message>
    <message id="kiv-settings-disclaimer">
        <source>Read the notice again</source>
        <translation>再次阅读须知</translation>
    </message>
    <message id="kiv-summary-overruled">
        <source>Overruled by the operator: %2. Verdict before: %1</source>
        <extracomment>The operator&apos;s verdict differs from the page&apos;s own, which follows, with his reason</extracomment>
        <translation>操作员推翻了结论：%2。之前的结论：%1</translation>
    </message>
    <message id="kiv-summary-attempts">
        <source>Attempts: %1</source>
        <translation>尝试次数：%1</translation>
    </message>
    <message id="kiv-summary-incomplete">
        <source>Not complete</source>
        <translation>未完成</translation>
    </message>
    <message id="kiv-summary-retest">
        <source>Retest failed</source>
        <translation>重测不合格项</translation>
    </message>
    <message id="kiv-summary-list">
        <source>Back to the list</source>
        <translation>返回列表</translation>
    </message>
    <message id="kiv-summary-next">
        <source>Next phone</source>
        <translation>下一台手机</translation>
    </message>
    <message id="kiv-page-broken">
        <source>This test cannot be opened on this phone.</source>
        <translation>无法在本机上打开此项测试。</translation>
    </message>
    <message id="kiv-test-leave">
        <source>Leave this test</source>
        <translation>离开此项测试</translation>
    </message>
    <message id="kiv-test-progress">
        <source>%1 of %2, about %3 min left</source>
        <extracomment>Place in the sequence and the time it still takes</extracomment>
        <translation>第 %1 项，共 %2 项，还需约 %3 分钟</translation>
    </message>
    <message id="kiv-test-retry">
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message id="kiv-page-missing-advice">
        <source>If this model is not meant to have it, choose Skip and say so.</source>
        <translation>如果该机型本来就没有此部件，请选择“跳过”并说明原因。</translation>
    </message>
    <message id="kiv-page-guided">
        <source>You judge this one: the phone cannot see the result itself.</source>
        <translation>此项由您判定：手机自身无法看到结果。</translation>
    </message>
    <message id="kiv-verdict-fail">
        <source>Fail</source>
        <translation>不合格</translation>
    </message>
    <message id="kiv-verdict-pass">
        <source>Pass</source>
        <translation>合格</translation>
    </message>
    <message id="kiv-verdict-hold">
        <source>Hold Pass until it has filled up</source>
        <translation>请按住“合格”直到填满</translation>
    </message>
    <message id="kiv-working-probing">
        <source>Checking what this phone has</source>
        <translation>正在检查本机具备哪些部件</translation>
    </message>
    <message id="kiv-step-done">
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message id="kiv-calibration-instructions">
        <source>The calibration record that production wrote is compared with what is asked of this product.</source>
        <translation>将生产时写入的校准记录与本产品的要求进行比较。</translation>
    </message>
    <message id="kiv-calibration-hint">
        <source>Pass unlocks when the record has been read.</source>
        <translation>读取校准记录后才能判为合格。</translation>
    </message>
    <message id="kiv-calibration-any">
        <source>must not be empty</source>
        <translation>不能为空</translation>
    </message>
    <message id="kiv-mac-criteria">
        <source>must match %1</source>
        <extracomment>A pattern that an address has to match</extracomment>
        <translation>必须匹配 %1</translation>
    </message>
    <message id="kiv-calibration-good">
        <source>The record is as it must be.</source>
        <translation>校准记录符合要求。</translation>
    </message>
    <message id="kiv-calibration-flag">
        <source>Calibration flag</source>
        <translation>校准标志</translation>
    </message>
    <message id="kiv-calibration-text">
        <source>Calibration text</source>
        <translation>校准文本</translation>
    </message>
    <message id="kiv-mac-instructions">
        <source>The addresses that production gave to the radios are compared with what is asked of this product.</source>
        <translation>将生产时写入的无线地址与本产品的要求进行比较。</translation>
    </message>
    <message id="kiv-mac-hint">
        <source>Pass unlocks when the addresses have been read.</source>
        <translation>读取地址后才能判为合格。</translation>
    </message>
    <message id="kiv-mac-missing">
        <source>This phone has neither Bluetooth nor Wi-Fi.</source>
        <translation>本机既没有蓝牙也没有 Wi-Fi。</translation>
    </message>
    <message id="kiv-mac-good">
        <source>Every address matches its pattern.</source>
        <translation>所有地址均符合格式要求。</translation>
    </message>
    <message id="kiv-mac-bluetooth">
        <source>Bluetooth address</source>
        <translation>蓝牙地址</translation>
    </message>
    <message id="kiv-mac-wireless">
        <source>Wi-Fi address</source>
        <translation>Wi-Fi 地址</translation>
    </message>
    <message id="kiv-sensor-accelerometer">
        <source>Accelerometer</source>
        <translation>加速度计</translation>
    </message>
    <message id="kiv-sensor-als">
        <source>Ambient light</source>
        <translation>环境光</translation>
    </message>
    <message id="kiv-sensor-compass">
        <source>Compass</source>
        <translation>电子罗盘</translation>
    </message>
    <message id="kiv-sensor-gyroscope">
        <source>Gyroscope</source>
        <translation>陀螺仪</translation>
    </message>
    <message id="kiv-sensor-humidity">
        <source>Humidity</source>
        <translation>湿度</translation>
    </message>
    <message id="kiv-sensor-lid">
        <source>Lid</source>
        <translation>翻盖</translation>
    </message>
    <message id="kiv-sensor-magnetometer">
        <source>Magnetometer</source>
        <translation>磁力计</translation>
    </message>
    <message id="kiv-sensor-orientation">
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message id="kiv-sensor-pressure">
        <source>Air pressure</source>
        <translation>气压</translation>
    </message>
    <message id="kiv-sensor-proximity">
        <source>Proximity</source>
        <translation>距离</translation>
    </message>
    <message id="kiv-sensor-rotation">
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
    <message id="kiv-sensor-stepcounter">
        <source>Step counter</source>
        <translation>计步器</translation>
    </message>
    <message id="kiv-sensor-tap">
        <source>Tap</source>
        <translation>敲击</translation>
    </message>
    <message id="kiv-sensor-temperature">
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message id="kiv-sensor-instructions">
        <source>Calibrate a sensor, load its stored calibration, or return to the factory&apos;s. Then judge by its values.</source>
        <translation>校准一个传感器、载入已保存的校准值或恢复出厂值，然后根据其数值判定。</translation>
    </message>
    <message id="kiv-sensor-hint">
        <source>Pass unlocks when a sensor has been calibrated.</source>
        <translation>校准过一个传感器后才能判为合格。</translation>
    </message>
    <message id="kiv-sensor-working">
        <source>Asking the sensors for their calibration</source>
        <translation>正在查询传感器的校准值</translation>
    </message>
    <message id="kiv-sensor-missing">
        <source>No sensor of this phone can be calibrated.</source>
        <translation>本机没有可校准的传感器。</translation>
    </message>
    <message id="kiv-sensor-running">
        <source>Calibrating: %1</source>
        <translation>正在校准：%1</translation>
    </message>
    <message id="kiv-sensor-done">
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message id="kiv-sensor-failed">
        <source>The calibration helper failed. It is not asked again until this page is opened anew.</source>
        <translation>校准程序运行失败。重新打开此页之前不再调用它。</translation>
    </message>
    <message id="kiv-sensor-calibrate">
        <source>Calibrate</source>
        <translation>校准</translation>
    </message>
    <message id="kiv-sensor-restore">
        <source>Stored values</source>
        <translation>已保存值</translation>
    </message>
    <message id="kiv-sensor-reset">
        <source>Factory values</source>
        <translation>出厂值</translation>
    </message>
    <message id="kiv-sensor-type">
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message id="kiv-sensor-representation">
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message id="kiv-system-instructions">
        <source>What the system is busy with. The list of processes appears after five seconds.</source>
        <translation>查看系统正在忙什么。进程列表在五秒后出现。</translation>
    </message>
    <message id="kiv-system-start">
        <source>Running since</source>
        <translation>启动时间</translation>
    </message>
    <message id="kiv-system-load-1">
        <source>Load, 1 minute</source>
        <translation>负载（1 分钟）</translation>
    </message>
    <message id="kiv-system-load-5">
        <source>Load, 5 minutes</source>
        <translation>负载（5 分钟）</translation>
    </message>
    <message id="kiv-system-load-15">
        <source>Load, 15 minutes</source>
        <translation>负载（15 分钟）</translation>
    </message>
    <message id="kiv-system-process">
        <source>%1 (%2)</source>
        <extracomment>A process: its name and its number</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message id="kiv-touch-self-instructions">
        <source>The touch controller tests itself. Keep fingers off the panel.</source>
        <translation>触摸控制器正在自检。请勿用手指接触屏幕。</translation>
    </message>
    <message id="kiv-touch-self-hint">
        <source>Pass unlocks when the controller has answered.</source>
        <translation>触摸控制器应答后才能判为合格。</translation>
    </message>
    <message id="kiv-touch-self-missing">
        <source>The touch controller of this phone has no self-test.</source>
        <translation>本机的触摸控制器没有自检功能。</translation>
    </message>
    <message id="kiv-touch-self-good">
        <source>The controller reports that it is in order.</source>
        <translation>触摸控制器报告一切正常。</translation>
    </message>
    <message id="kiv-touch-self-bad">
        <source>The controller reports a fault or gives no report.</source>
        <translation>触摸控制器报告故障，或没有报告。</translation>
    </message>
    <message id="kiv-touch-self-outcome">
        <source>Self-test in order</source>
        <translation>自检正常</translation>
    </message>
    <message id="kiv-battery-missing">
        <source>No battery was found.</source>
        <translation>未找到电池。</translation>
    </message>
    <message id="kiv-ecompass-good">
        <source>The compass followed a whole turn.</source>
        <translation>电子罗盘跟随转动了一整圈。</translation>
    </message>
    <message id="kiv-ecompass-instructions">
        <source>Keep the phone level and turn around once. If it sticks, draw a large eight in the air with the phone first.</source>
        <translation>水平拿稳手机，原地转一圈。如果指针卡住不动，请先拿着手机在空中画一个大“8”字。</translation>
    </message>
    <message id="kiv-ecompass-hint">
        <source>Pass unlocks when the compass followed a whole turn.</source>
        <translation>电子罗盘跟随转动一整圈后才能判为合格。</translation>
    </message>
    <message id="kiv-ecompass-missing">
        <source>No compass was found.</source>
        <translation>未找到电子罗盘。</translation>
    </message>
    <message id="kiv-ecompass-heading">
        <source>Heading</source>
        <translation>方位角</translation>
    </message>
    <message id="kiv-ecompass-directions">
        <source>Directions seen</source>
        <translation>已检测到的方向</translation>
    </message>
    <message id="kiv-ecompass-level">
        <source>Calibration level</source>
        <translation>校准程度</translation>
    </message>
    <message id="kiv-gyro-good">
        <source>Averages of 32 samples are within their limits.</source>
        <translation>32 次采样的平均值均在限值之内。</translation>
    </message>
    <message id="kiv-gyro-instructions">
        <source>Lay the phone flat on a table, the display up, and do not touch the table.</source>
        <translation>将手机屏幕朝上平放在桌面上，不要碰桌子。</translation>
    </message>
    <message id="kiv-gyro-hint">
        <source>Pass unlocks when the sensors have been measured.</source>
        <translation>测量传感器后才能判为合格。</translation>
    </message>
    <message id="kiv-gyro-missing">
        <source>This phone has neither an accelerometer nor a gyroscope.</source>
        <translation>本机既没有加速度计也没有陀螺仪。</translation>
    </message>
    <message id="kiv-gyro-measure">
        <source>It lies flat: measure now</source>
        <translation>已放平，开始测量</translation>
    </message>
    <message id="kiv-gyro-progress">
        <source>Measuring: %1 of %2</source>
        <translation>正在测量：%1 / %2</translation>
    </message>
    <message id="kiv-gyro-acceleration-x">
        <source>Acceleration X</source>
        <translation>X 轴加速度</translation>
    </message>
    <message id="kiv-gyro-acceleration-y">
        <source>Acceleration Y</source>
        <translation>Y 轴加速度</translation>
    </message>
    <message id="kiv-gyro-acceleration-z">
        <source>Acceleration Z</source>
        <translation>Z 轴加速度</translation>
    </message>
    <message id="kiv-gyro-rotation-x">
        <source>Rotation X</source>
        <translation>X 轴角速度</translation>
    </message>
    <message id="kiv-gyro-rotation-y">
        <source>Rotation Y</source>
        <translation>Y 轴角速度</translation>
    </message>
    <message id="kiv-gyro-rotation-z">
        <source>Rotation Z</source>
        <translation>Z 轴角速度</translation>
    </message>
    <message id="kiv-gyro-rotation">
        <source>Gyroscope in order</source>
        <translation>陀螺仪正常</translation>
    </message>
    <message id="kiv-hall-good">
        <source>The switch saw the magnet come and go.</source>
        <translation>开关检测到磁铁靠近和离开。</translation>
    </message>
    <message id="kiv-hall-hint">
        <source>Pass unlocks when the magnet was seen to come and go.</source>
        <translation>检测到磁铁靠近并离开后才能判为合格。</translation>
    </message>
    <message id="kiv-hall-missing">
        <source>This phone has no magnet switch.</source>
        <translation>本机没有磁性开关。</translation>
    </message>
    <message id="kiv-hall-step-close">
        <source>Hold a magnet or a closed cover to the phone</source>
        <translation>将磁铁或合上的皮套靠近手机</translation>
    </message>
    <message id="kiv-hall-step-open">
        <source>Take it away</source>
        <translation>将其移开</translation>
    </message>
    <message id="kiv-hall-magnet">
        <source>Magnet at the switch</source>
        <translation>开关处有磁铁</translation>
    </message>
    <message id="kiv-headset-headset">
        <source>Headset</source>
        <translation>耳机（带麦克风）</translation>
    </message>
    <message id="kiv-headset-headphones">
        <source>Headphones without microphone</source>
        <translation>耳机（不带麦克风）</translation>
    </message>
    <message id="kiv-headset-microphone">
        <source>Microphone only</source>
        <translation>仅麦克风</translation>
    </message>
    <message id="kiv-headset-empty">
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message id="kiv-headset-good">
        <source>The socket was seen empty and with a headset.</source>
        <translation>检测到插孔空置和插入耳机两种状态。</translation>
    </message>
    <message id="kiv-headset-hint">
        <source>Pass unlocks when the socket was seen empty and with a headset.</source>
        <translation>检测到插孔空置和插入耳机后才能判为合格。</translation>
    </message>
    <message id="kiv-headset-missing">
        <source>No headset socket was found.</source>
        <translation>未找到耳机插孔。</translation>
    </message>
    <message id="kiv-headset-step-empty">
        <source>Take everything out of the headset socket</source>
        <translation>拔出耳机插孔中的所有插头</translation>
    </message>
    <message id="kiv-headset-step-plug">
        <source>Plug a headset with a microphone in</source>
        <translation>插入带麦克风的耳机</translation>
    </message>
    <message id="kiv-headset-socket">
        <source>Headset socket</source>
        <translation>耳机插孔</translation>
    </message>
    <message id="kiv-headset-buttons-media">
        <source>Media</source>
        <extracomment>A key of a headset</extracomment>
        <translation>媒体键</translation>
    </message>
    <message id="kiv-headset-buttons-play">
        <source>Play/Pause</source>
        <extracomment>A key of a headset</extracomment>
        <translation>播放/暂停</translation>
    </message>
    <message id="kiv-headset-buttons-good">
        <source>Every button that the phone knows was pressed and let go.</source>
        <translation>手机所知的每个按键都已按下并松开。</translation>
    </message>
    <message id="kiv-headset-buttons-instructions">
        <source>Plug the headset in and press each of its buttons once.</source>
        <translation>插入耳机，将其每个按键各按一次。</translation>
    </message>
    <message id="kiv-headset-buttons-hint">
        <source>Pass unlocks when a button was pressed and let go.</source>
        <translation>按下并松开一个按键后才能判为合格。</translation>
    </message>
    <message id="kiv-headset-buttons-missing">
        <source>No headset buttons were found.</source>
        <translation>未找到耳机按键。</translation>
    </message>
    <message id="kiv-headset-buttons-pressed">
        <source>Buttons pressed</source>
        <translation>已按下的按键</translation>
    </message>
    <message id="kiv-headset-buttons-known">
        <source>the phone knows %1</source>
        <extracomment>How many buttons the phone can tell apart</extracomment>
        <translation>手机所知的按键数：%1</translation>
    </message>
    <message id="kiv-key-good">
        <source>Every key was pressed and let go.</source>
        <translation>每个按键都已按下并松开。</translation>
    </message>
    <message id="kiv-key-instructions">
        <source>Press each key once and let it go.</source>
        <translation>将每个按键按一次并松开。</translation>
    </message>
    <message id="kiv-key-hint">
        <source>Pass unlocks when every key was pressed and let go.</source>
        <translation>每个按键都按下并松开后才能判为合格。</translation>
    </message>
    <message id="kiv-key-missing">
        <source>No key of this phone is configured for the test.</source>
        <translation>本机没有为此项测试配置按键。</translation>
    </message>
    <message id="kiv-key-held">
        <source>held</source>
        <translation>按住中</translation>
    </message>
    <message id="kiv-key-waiting">
        <source>not yet pressed</source>
        <translation>尚未按下</translation>
    </message>
    <message id="kiv-light-good">
        <source>The sensor told dark from bright.</source>
        <translation>传感器能区分明暗。</translation>
    </message>
    <message id="kiv-light-instructions">
        <source>Cover the sensor above the display with a finger, then hold it to the light.</source>
        <translation>用手指遮住屏幕上方的传感器，然后将其对着光亮处。</translation>
    </message>
    <message id="kiv-light-hint">
        <source>Pass unlocks when the sensor told dark from bright.</source>
        <translation>传感器区分出明暗后才能判为合格。</translation>
    </message>
    <message id="kiv-light-missing">
        <source>No light sensor was found.</source>
        <translation>未找到光线传感器。</translation>
    </message>
    <message id="kiv-light-now">
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message id="kiv-light-darkest">
        <source>Darkest</source>
        <translation>最暗</translation>
    </message>
    <message id="kiv-light-brightest">
        <source>Brightest</source>
        <translation>最亮</translation>
    </message>
    <message id="kiv-multi-touch-good">
        <source>The panel told %1 fingers apart.</source>
        <translation>触摸屏区分出 %1 根手指。</translation>
    </message>
    <message id="kiv-multi-touch-bad">
        <source>The panel did not tell two fingers apart.</source>
        <translation>触摸屏未能区分两根手指。</translation>
    </message>
    <message id="kiv-multi-touch-instructions">
        <source>Put five fingers on the panel at once.</source>
        <translation>将五根手指同时放在触摸屏上。</translation>
    </message>
    <message id="kiv-multi-touch-hint">
        <source>Pass unlocks when two fingers have been told apart.</source>
        <translation>区分出两根手指后才能判为合格。</translation>
    </message>
    <message id="kiv-multi-touch-count">
        <source>%1 of %2</source>
        <extracomment>How many fingers were seen, and how many are wanted</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message id="kiv-multi-touch-patience">
        <source>Ends in %1 s without a touch</source>
        <translation>%1 秒内无触摸则结束</translation>
    </message>
    <message id="kiv-multi-touch-seen">
        <source>Fingers at once</source>
        <translation>同时触摸的手指数</translation>
    </message>
    <message id="kiv-prox-good">
        <source>The sensor saw the hand come and go.</source>
        <translation>传感器检测到手的靠近和离开。</translation>
    </message>
    <message id="kiv-prox-hint">
        <source>Pass unlocks when the hand was seen to come and go.</source>
        <translation>检测到手靠近并离开后才能判为合格。</translation>
    </message>
    <message id="kiv-prox-missing">
        <source>No proximity sensor was found.</source>
        <translation>未找到距离传感器。</translation>
    </message>
    <message id="kiv-prox-step-near">
        <source>Hold a hand over the top of the display</source>
        <translation>将手遮在屏幕顶部上方</translation>
    </message>
    <message id="kiv-prox-step-far">
        <source>Take the hand away</source>
        <translation>将手移开</translation>
    </message>
    <message id="kiv-prox-near">
        <source>Something near</source>
        <translation>附近有物体</translation>
    </message>
    <message id="kiv-sd-card-none">
        <source>No card</source>
        <translation>无卡</translation>
    </message>
    <message id="kiv-sd-card-unmounted">
        <source>Not mounted</source>
        <translation>未挂载</translation>
    </message>
    <message id="kiv-sd-card-mounting">
        <source>Being mounted</source>
        <translation>正在挂载</translation>
    </message>
    <message id="kiv-sd-card-mounted">
        <source>Mounted</source>
        <translation>已挂载</translation>
    </message>
    <message id="kiv-sd-card-unmounting">
        <source>Being unmounted</source>
        <translation>正在卸载</translation>
    </message>
    <message id="kiv-sd-card-not-created">
        <source>No file could be created on the card.</source>
        <translation>无法在卡上创建文件。</translation>
    </message>
    <message id="kiv-sd-card-differs">
        <source>What was read is not what was written.</source>
        <translation>读出的内容与写入的不一致。</translation>
    </message>
    <message id="kiv-sd-card-good">
        <source>A file was written, read back and removed.</source>
        <translation>已写入、读回并删除一个文件。</translation>
    </message>
    <message id="kiv-sd-card-working">
        <source>Writing and reading the card</source>
        <translation>正在读写存储卡</translation>
    </message>
    <message id="kiv-sd-card-instructions-insert">
        <source>Put a memory card into the slot.</source>
        <translation>请将存储卡插入卡槽。</translation>
    </message>
    <message id="kiv-sd-card-instructions">
        <source>The card is tested as soon as it is mounted.</source>
        <translation>存储卡挂载后立即开始测试。</translation>
    </message>
    <message id="kiv-sd-card-hint">
        <source>Pass unlocks when the card has been written and read.</source>
        <translation>读写存储卡后才能判为合格。</translation>
    </message>
    <message id="kiv-sd-card-missing">
        <source>There is no card in the slot.</source>
        <translation>卡槽中没有卡。</translation>
    </message>
    <message id="kiv-sd-card-mount-failed">
        <source>A card could not be mounted: it may be damaged or have no file system.</source>
        <translation>有一张卡无法挂载：可能已损坏或没有文件系统。</translation>
    </message>
    <message id="kiv-sd-card-state">
        <source>Card</source>
        <translation>存储卡</translation>
    </message>
    <message id="kiv-sd-card-outcome">
        <source>Write and read</source>
        <translation>写入和读取</translation>
    </message>
    <message id="kiv-touch-good">
        <source>Every part of the panel has reacted.</source>
        <translation>触摸屏的每个部分都有反应。</translation>
    </message>
    <message id="kiv-touch-bad">
        <source>Parts of the panel did not react: %1 of %2</source>
        <translation>触摸屏没有反应的部分：%1 / %2</translation>
    </message>
    <message id="kiv-touch-instructions">
        <source>Wipe over the whole panel until no cell is left.</source>
        <translation>擦过整个触摸屏，直到所有格子消失。</translation>
    </message>
    <message id="kiv-touch-hint">
        <source>Pass unlocks when every cell has been wiped.</source>
        <translation>擦过所有格子后才能判为合格。</translation>
    </message>
    <message id="kiv-touch-patience">
        <source>Ends in %1 s without a new cell</source>
        <translation>%1 秒内没有新格子则结束</translation>
    </message>
    <message id="kiv-touch-reacted">
        <source>Cells that reacted</source>
        <translation>有反应的格子</translation>
    </message>
    <message id="kiv-charging-missing">
        <source>No battery was found, so charging cannot be observed.</source>
        <translation>未找到电池，因此无法观察充电。</translation>
    </message>
    <message id="kiv-charging-switching-off">
        <source>Switching the charger off</source>
        <translation>正在关闭充电</translation>
    </message>
    <message id="kiv-charging-switching-on">
        <source>Switching the charger on</source>
        <translation>正在打开充电</translation>
    </message>
    <message id="kiv-charging-good">
        <source>Charging stopped and resumed as it was switched.</source>
        <translation>充电随开关停止并恢复。</translation>
    </message>
    <message id="kiv-charging-hint">
        <source>Pass unlocks when the charger has been switched off and on.</source>
        <translation>充电关闭并重新打开后才能判为合格。</translation>
    </message>
    <message id="kiv-charging-step-plug">
        <source>Plug a charger into the USB socket</source>
        <translation>将充电器插入 USB 接口</translation>
    </message>
    <message id="kiv-charging-step-on">
        <source>The phone charges: wait</source>
        <translation>手机正在充电：请稍候</translation>
    </message>
    <message id="kiv-charging-step-off">
        <source>Kiv switches the charger off: charging stops</source>
        <translation>Kiv 关闭充电：充电停止</translation>
    </message>
    <message id="kiv-charging-step-again">
        <source>Kiv switches the charger on: charging resumes</source>
        <translation>Kiv 打开充电：充电恢复</translation>
    </message>
    <message id="kiv-charging-current-on">
        <source>Current, charger on</source>
        <translation>电流（充电打开）</translation>
    </message>
    <message id="kiv-charging-current-off">
        <source>Current, charger off</source>
        <translation>电流（充电关闭）</translation>
    </message>
    <message id="kiv-charging-stops">
        <source>Charging stops</source>
        <translation>充电停止</translation>
    </message>
    <message id="kiv-charging-resumes">
        <source>Charging resumes</source>
        <translation>充电恢复</translation>
    </message>
    <message id="kiv-vibrator-good">
        <source>The operator felt as many pulses as were given.</source>
        <translation>操作员感觉到的振动次数与实际次数相同。</translation>
    </message>
    <message id="kiv-vibrator-instructions">
        <source>Hold the phone in the hand and count the pulses.</source>
        <translation>将手机握在手中，数一数振动的次数。</translation>
    </message>
    <message id="kiv-vibrator-hint">
        <source>Pass unlocks when you have said how many pulses you felt.</source>
        <translation>回答感觉到几次振动后才能判为合格。</translation>
    </message>
    <message id="kiv-vibrator-missing">
        <source>No vibrator was found.</source>
        <translation>未找到振动马达。</translation>
    </message>
    <message id="kiv-vibrator-question">
        <source>How many pulses did you feel?</source>
        <translation>您感觉到几次振动？</translation>
    </message>
    <message id="kiv-vibrator-again">
        <source>Give the pulses again</source>
        <translation>再振动一遍</translation>
    </message>
    <message id="kiv-limits-accepted">
        <source>must be %1</source>
        <extracomment>The value that a reading must have</extracomment>
        <translation>必须是 %1</translation>
    </message>
    <message id="kiv-sd-card-failed">
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message id="kiv-battery-charging">
        <source>Charging</source>
        <translation>正在充电</translation>
    </message>
    <message id="kiv-battery-discharging">
        <source>Discharging</source>
        <translation>正在放电</translation>
    </message>
    <message id="kiv-battery-not-charging">
        <source>Not charging</source>
        <translation>未充电</translation>
    </message>
    <message id="kiv-battery-full">
        <source>Full</source>
        <translation>已充满</translation>
    </message>
    <message id="kiv-battery-unknown">
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message id="kiv-battery-health-good">
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message id="kiv-battery-health-overheat">
        <source>Overheated</source>
        <translation>过热</translation>
    </message>
    <message id="kiv-battery-health-dead">
        <source>Dead</source>
        <translation>损坏</translation>
    </message>
    <message id="kiv-battery-health-over-voltage">
        <source>Over voltage</source>
        <translation>过压</translation>
    </message>
    <message id="kiv-battery-health-failure">
        <source>Unspecified failure</source>
        <translation>不明故障</translation>
    </message>
    <message id="kiv-battery-health-cold">
        <source>Cold</source>
        <translation>过冷</translation>
    </message>
    <message id="kiv-settings-modems">
        <source>Modems</source>
        <translation>调制解调器</translation>
    </message>
    <message id="kiv-settings-keys">
        <source>Keys to test</source>
        <translation>要测试的按键</translation>
    </message>
    <message id="kiv-settings-flash">
        <source>Flash of the back camera</source>
        <translation>后置摄像头闪光灯</translation>
    </message>
    <message id="kiv-settings-frequency">
        <source>FM frequency of the test</source>
        <translation>测试用 FM 频率</translation>
    </message>
    <message id="kiv-settings-run-in">
        <source>Length of the run-in</source>
        <translation>老化测试时长</translation>
    </message>
    <message id="kiv-settings-microphone-top">
        <source>Upper microphone</source>
        <translation>上部麦克风</translation>
    </message>
    <message id="kiv-settings-microphone">
        <source>%1, channel %2</source>
        <extracomment>A microphone of the sound server and its channel</extracomment>
        <translation>%1，声道 %2</translation>
    </message>
    <message id="kiv-settings-microphone-bottom">
        <source>Lower microphone</source>
        <translation>下部麦克风</translation>
    </message>
    <message id="kiv-settings-configured">
        <source>As its makers configured it:</source>
        <translation>厂商配置如下：</translation>
    </message>
    <message id="kiv-headset-music-instructions">
        <source>Play each sound and listen to the headset: it must come from the side that its button names.</source>
        <translation>逐个播放声音并用耳机收听：声音必须来自按钮所标的一侧。</translation>
    </message>
    <message id="kiv-headset-music-instructions-plug">
        <source>Plug a headset in.</source>
        <translation>请插入耳机。</translation>
    </message>
    <message id="kiv-sound-left">
        <source>Left: low tone</source>
        <translation>左：低音</translation>
    </message>
    <message id="kiv-sound-right">
        <source>Right: high tone</source>
        <translation>右：高音</translation>
    </message>
    <message id="kiv-sound-tune">
        <source>Play the tune</source>
        <translation>播放曲调</translation>
    </message>
    <message id="kiv-headset-music-plugged">
        <source>Headset</source>
        <translation>耳机</translation>
    </message>
    <message id="kiv-speaker-music-instructions">
        <source>Play the tune and listen to the loudspeaker: every tone must be clear, without rattling.</source>
        <translation>播放曲调并收听扬声器：每个音都必须清晰，没有杂音。</translation>
    </message>
    <message id="kiv-receiver-instructions">
        <source>Play the tune and hold the phone to your ear: it must come from the earpiece only.</source>
        <translation>播放曲调并将手机贴近耳朵：声音必须只来自听筒。</translation>
    </message>
    <message id="kiv-speaker-stereo-instructions">
        <source>Play each sound: it must come from the side that its button names.</source>
        <translation>逐个播放声音：声音必须来自按钮所标的一侧。</translation>
    </message>
    <message id="kiv-sound-both">
        <source>Both sides</source>
        <translation>两侧</translation>
    </message>
    <message id="kiv-microphone-missing">
        <source>The sound server has no built-in microphone, or its tool does not answer.</source>
        <translation>音频服务没有内置麦克风，或其工具没有应答。</translation>
    </message>
    <message id="kiv-microphone-hint">
        <source>Pass unlocks when a recording has been played back.</source>
        <translation>回放录音后才能判为合格。</translation>
    </message>
    <message id="kiv-microphone-working">
        <source>Looking for the microphone</source>
        <translation>正在查找麦克风</translation>
    </message>
    <message id="kiv-microphone-recording">
        <source>Recording: speak now.</source>
        <translation>正在录音：请讲话。</translation>
    </message>
    <message id="kiv-microphone-playing">
        <source>Playing what was recorded.</source>
        <translation>正在回放录音。</translation>
    </message>
    <message id="kiv-microphone-record">
        <source>Record four seconds</source>
        <translation>录音四秒</translation>
    </message>
    <message id="kiv-microphone-play">
        <source>Play it again</source>
        <translation>再播放一遍</translation>
    </message>
    <message id="kiv-sound-missing">
        <source>The sound server has no main output, or its tool does not answer.</source>
        <translation>音频服务没有主输出，或其工具没有应答。</translation>
    </message>
    <message id="kiv-sound-hint">
        <source>Pass unlocks when every sound has been played.</source>
        <translation>播放过所有声音后才能判为合格。</translation>
    </message>
    <message id="kiv-sound-working">
        <source>Setting up the sound output</source>
        <translation>正在设置声音输出</translation>
    </message>
    <message id="kiv-system-streams">
        <source>What plays into the sound server</source>
        <translation>正在向音频服务播放的内容</translation>
    </message>
    <message id="kiv-system-stream-paused">
        <source>paused</source>
        <translation>已暂停</translation>
    </message>
    <message id="kiv-system-stream-muted">
        <source>muted</source>
        <translation>已静音</translation>
    </message>
    <message id="kiv-microphone-bottom">
        <source>Speak into the microphone at the bottom of the phone and listen to the recording.</source>
        <translation>对着手机底部的麦克风讲话，然后收听录音。</translation>
    </message>
    <message id="kiv-microphone-top">
        <source>Speak into the microphone at the top of the phone and listen to the recording.</source>
        <translation>对着手机顶部的麦克风讲话，然后收听录音。</translation>
    </message>
    <message id="kiv-fm-radio-instructions">
        <source>Plug a headset in, whose cable is the antenna, and switch the radio on. A station or at least noise must be heard.</source>
        <translation>插入耳机（耳机线即天线），打开收音机。必须能听到电台，至少能听到噪声。</translation>
    </message>
    <message id="kiv-fm-radio-hint">
        <source>Pass unlocks when the radio has been on.</source>
        <translation>收音机打开过后才能判为合格。</translation>
    </message>
    <message id="kiv-fm-radio-antenna">
        <source>Headset as antenna</source>
        <translation>耳机作为天线</translation>
    </message>
    <message id="kiv-fm-radio-frequency">
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message id="kiv-fm-radio-loop">
        <source>Radio switched to the headset</source>
        <translation>收音机已接到耳机</translation>
    </message>
    <message id="kiv-fm-radio-off">
        <source>Switch the radio off</source>
        <translation>关闭收音机</translation>
    </message>
    <message id="kiv-fm-radio-on">
        <source>Switch the radio on</source>
        <translation>打开收音机</translation>
    </message>
    <message id="kiv-fm-radio-refused">
        <source>The radio could not be switched on: the audio policy does not answer or does not offer it.</source>
        <translation>无法打开收音机：音频策略没有应答或不支持。</translation>
    </message>
    <message id="kiv-microphone-unplayed">
        <source>The sound server did not play the recording: it was restarted while Kiv was running. Restart Kiv.</source>
        <translation>音频服务没有播放录音：Kiv 运行期间它重新启动过。请重启 Kiv。</translation>
    </message>
    <message id="kiv-sound-unreached">
        <source>The sound server does not answer. Try again once it runs. If that does not help, restart Kiv.</source>
        <translation>音频服务没有应答。请在其运行后重试；如果仍不行，请重启 Kiv。</translation>
    </message>
    <message id="kiv-microphone-putting-back">
        <source>Putting the microphone back. This takes up to two minutes while the sound server does not answer.</source>
        <translation>正在恢复麦克风设置。如果音频服务没有应答，最多需要两分钟。</translation>
    </message>
    <message id="kiv-microphone-no-level">
        <source>The phone shows no level. Listen to the recording afterwards.</source>
        <translation>手机不显示电平。请稍后收听录音。</translation>
    </message>
    <message id="kiv-microphone-silent">
        <source>Nothing heard? Then the microphone is deaf, or the folder /tmp is full: a recording takes about 800 kB there.</source>
        <translation>什么也没听到？那么麦克风失灵，或 /tmp 文件夹已满：一段录音约需 800 kB。</translation>
    </message>
    <message id="kiv-side-left">
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message id="kiv-side-right">
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message id="kiv-side-none">
        <source>Neither, or I cannot tell</source>
        <translation>都不是，或听不出来</translation>
    </message>
    <message id="kiv-sides-wrong">
        <source>A tone played on the side &quot;%1&quot; was heard as &quot;%2&quot;</source>
        <extracomment>From which side a tone came, and from which the operator heard it</extracomment>
        <translation>在“%1”侧播放的音，听到的是“%2”侧</translation>
    </message>
    <message id="kiv-sides-good">
        <source>The operator heard every tone from its side: %1 of %1</source>
        <translation>操作员听出了每个音所在的一侧：%1 / %1</translation>
    </message>
    <message id="kiv-sides-question">
        <source>From which side does the tone come? Question %1 of %2</source>
        <extracomment>Number of this question and of all of them</extracomment>
        <translation>声音来自哪一侧？第 %1 题，共 %2 题</translation>
    </message>
    <message id="kiv-sides-again">
        <source>Play the tone again</source>
        <translation>再播放一遍</translation>
    </message>
    <message id="kiv-sides-play">
        <source>Play the tone</source>
        <translation>播放声音</translation>
    </message>
    <message id="kiv-sound-unswitched">
        <source>The sound server does not switch to the output %1.</source>
        <extracomment>The name of the output in the sound server</extracomment>
        <translation>音频服务没有切换到输出 %1。</translation>
    </message>
    <message id="kiv-sides-hint">
        <source>Answer from which side each tone comes: the answers are the verdict.</source>
        <translation>回答每个音来自哪一侧：由回答得出判定。</translation>
    </message>
    <message id="kiv-fm-radio-working">
        <source>Waiting for the audio policy</source>
        <translation>正在等待音频策略</translation>
    </message>
    <message id="kiv-gps-satellite">
        <source>Satellite %1, %2 dB</source>
        <extracomment>A satellite: its number, its strength in decibels</extracomment>
        <translation>卫星 %1，%2 dB</translation>
    </message>
    <message id="kiv-gps-used">
        <source>in use</source>
        <translation>使用中</translation>
    </message>
    <message id="kiv-gps-more">
        <source>Weaker ones that are not shown: %1</source>
        <extracomment>How many satellites have no bar</extracomment>
        <translation>未显示的较弱卫星：%1</translation>
    </message>
    <message id="kiv-gps-sky">
        <source>Places of the satellites in the sky</source>
        <translation>卫星在天空中的位置</translation>
    </message>
    <message id="kiv-gps-north">
        <source>N</source>
        <extracomment>North, one or two letters</extracomment>
        <translation>北</translation>
    </message>
    <message id="kiv-gps-east">
        <source>E</source>
        <extracomment>East, one or two letters</extracomment>
        <translation>东</translation>
    </message>
    <message id="kiv-gps-south">
        <source>S</source>
        <extracomment>South, one or two letters</extracomment>
        <translation>南</translation>
    </message>
    <message id="kiv-gps-west">
        <source>W</source>
        <extracomment>West, one or two letters</extracomment>
        <translation>西</translation>
    </message>
    <message id="kiv-test-radios">
        <source>Radio switches</source>
        <translation>无线开关</translation>
    </message>
    <message id="kiv-bluetooth-off">
        <source>Bluetooth is switched off.</source>
        <translation>蓝牙已关闭。</translation>
    </message>
    <message id="kiv-bluetooth-no-radio">
        <source>No Bluetooth radio was found.</source>
        <translation>未找到蓝牙模块。</translation>
    </message>
    <message id="kiv-bluetooth-no-service">
        <source>The Bluetooth service is in trouble or not there.</source>
        <translation>蓝牙服务异常或不存在。</translation>
    </message>
    <message id="kiv-network-none">
        <source>no network</source>
        <translation>无网络</translation>
    </message>
    <message id="kiv-network-emergency">
        <source>emergency calls only</source>
        <translation>仅限紧急呼叫</translation>
    </message>
    <message id="kiv-network-searching">
        <source>searching</source>
        <translation>正在搜索</translation>
    </message>
    <message id="kiv-network-busy">
        <source>busy</source>
        <translation>忙</translation>
    </message>
    <message id="kiv-network-denied">
        <source>refused by the network</source>
        <translation>被网络拒绝</translation>
    </message>
    <message id="kiv-network-home">
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message id="kiv-network-roaming">
        <source>connected, roaming</source>
        <translation>已连接（漫游）</translation>
    </message>
    <message id="kiv-switch-on">
        <source>on</source>
        <translation>开</translation>
    </message>
    <message id="kiv-switch-off">
        <source>off</source>
        <translation>关</translation>
    </message>
    <message id="kiv-radios-instructions">
        <source>Compare these with the phone&apos;s settings. A switch that is moved there must move here, too.</source>
        <translation>与手机的设置对照：在设置中拨动开关，这里也应随之变化。</translation>
    </message>
    <message id="kiv-radios-hint">
        <source>Pass unlocks when the mode-control service has answered.</source>
        <translation>模式控制服务应答后才能判为合格。</translation>
    </message>
    <message id="kiv-radios-lost">
        <source>The mode-control service does not answer.</source>
        <translation>模式控制服务没有应答。</translation>
    </message>
    <message id="kiv-radios-service">
        <source>Mode-control service</source>
        <translation>模式控制服务</translation>
    </message>
    <message id="kiv-service-answers">
        <source>answers</source>
        <translation>有应答</translation>
    </message>
    <message id="kiv-service-silent">
        <source>does not answer</source>
        <translation>没有应答</translation>
    </message>
    <message id="kiv-radios-nfc">
        <source>NFC</source>
        <translation>NFC</translation>
    </message>
    <message id="kiv-radios-fm-transmitter">
        <source>FM transmitter</source>
        <translation>FM 发射器</translation>
    </message>
    <message id="kiv-radios-4g">
        <source>4G preferred by the modem settings</source>
        <translation>调制解调器设置优先使用 4G</translation>
    </message>
    <message id="kiv-system-duration">
        <source>%1 h %2 min %3 s</source>
        <extracomment>A duration: hours, minutes, seconds</extracomment>
        <translation>%1 小时 %2 分 %3 秒</translation>
    </message>
    <message id="kiv-system-up">
        <source>Switched on for</source>
        <translation>开机时长</translation>
    </message>
    <message id="kiv-system-asleep">
        <source>Asleep meanwhile</source>
        <translation>其间休眠</translation>
    </message>
    <message id="kiv-bluetooth-working">
        <source>Asking for the Bluetooth radio</source>
        <translation>正在查询蓝牙模块</translation>
    </message>
    <message id="kiv-bluetooth-good">
        <source>The address is in order, and the radio found a device: %1</source>
        <translation>地址正常，且蓝牙找到一个设备：%1</translation>
    </message>
    <message id="kiv-bluetooth-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds devices.</source>
        <translation>将地址与其格式比较。然后在手机的设置中查看能否找到设备。</translation>
    </message>
    <message id="kiv-bluetooth-instructions">
        <source>Put a device nearby that can be found, such as a headset that is being paired.</source>
        <translation>在附近放一个可被发现的设备，例如正在配对的耳机。</translation>
    </message>
    <message id="kiv-bluetooth-hint">
        <source>Pass unlocks when the address is in order and the radio has searched.</source>
        <translation>地址正常且蓝牙搜索过后才能判为合格。</translation>
    </message>
    <message id="kiv-bluetooth-missing">
        <source>This phone has no Bluetooth.</source>
        <translation>本机没有蓝牙。</translation>
    </message>
    <message id="kiv-radio-blind">
        <source>This phone&apos;s system does not tell anything about the radio.</source>
        <translation>本机系统不提供该无线模块的任何信息。</translation>
    </message>
    <message id="kiv-bluetooth-nobody">
        <source>The radio searched, but no device answered.</source>
        <translation>蓝牙已搜索，但没有设备应答。</translation>
    </message>
    <message id="kiv-bluetooth-again">
        <source>Search again</source>
        <translation>重新搜索</translation>
    </message>
    <message id="kiv-bluetooth-searching">
        <source>Searching</source>
        <translation>正在搜索</translation>
    </message>
    <message id="kiv-radio-found">
        <source>Radio found</source>
        <translation>找到无线模块</translation>
    </message>
    <message id="kiv-bluetooth-devices">
        <source>Devices found</source>
        <translation>找到的设备</translation>
    </message>
    <message id="kiv-gps-status-error">
        <source>in trouble or not there</source>
        <translation>异常或不存在</translation>
    </message>
    <message id="kiv-gps-status-unavailable">
        <source>cannot position</source>
        <translation>无法定位</translation>
    </message>
    <message id="kiv-gps-status-acquiring">
        <source>looking for the position</source>
        <translation>正在定位</translation>
    </message>
    <message id="kiv-gps-status-available">
        <source>knows the position</source>
        <translation>已定位</translation>
    </message>
    <message id="kiv-gps-status-unknown">
        <source>unknown (%1)</source>
        <extracomment>The service reports a state that has no name</extracomment>
        <translation>未知（%1）</translation>
    </message>
    <message id="kiv-gps-good">
        <source>A satellite was in use after %1 s.</source>
        <translation>%1 秒后有一颗卫星用于定位。</translation>
    </message>
    <message id="kiv-gps-instructions">
        <source>Go outdoors or to a window. The first satellite may take some minutes.</source>
        <translation>请到室外或窗边。找到第一颗卫星可能需要几分钟。</translation>
    </message>
    <message id="kiv-gps-hint-position">
        <source>Pass unlocks when the positioning service knows the position.</source>
        <translation>定位服务定位后才能判为合格。</translation>
    </message>
    <message id="kiv-gps-hint">
        <source>Pass unlocks when a satellite is in use.</source>
        <translation>有卫星用于定位后才能判为合格。</translation>
    </message>
    <message id="kiv-gps-missing">
        <source>This phone has no satellite receiver.</source>
        <translation>本机没有卫星接收器。</translation>
    </message>
    <message id="kiv-gps-no-source">
        <source>The system offers no view of the satellites, only the state of the positioning service.</source>
        <translation>系统不提供卫星信息，只提供定位服务的状态。</translation>
    </message>
    <message id="kiv-gps-error">
        <source>The positioning service is in trouble or does not answer.</source>
        <translation>定位服务异常或没有应答。</translation>
    </message>
    <message id="kiv-gps-unavailable">
        <source>The positioning service cannot position. Is positioning switched on in the phone&apos;s settings?</source>
        <translation>定位服务无法定位。手机设置中是否打开了定位？</translation>
    </message>
    <message id="kiv-gps-source-error">
        <source>The receiver reports an error.</source>
        <translation>接收器报告错误。</translation>
    </message>
    <message id="kiv-gps-silent">
        <source>The receiver has not reported for %1 s.</source>
        <translation>接收器已有 %1 秒没有报告。</translation>
    </message>
    <message id="kiv-gps-legend">
        <source>in use for the position</source>
        <translation>用于定位</translation>
    </message>
    <message id="kiv-gps-status">
        <source>Positioning service</source>
        <translation>定位服务</translation>
    </message>
    <message id="kiv-gps-in-view">
        <source>Satellites in view</source>
        <translation>可见卫星</translation>
    </message>
    <message id="kiv-gps-in-use">
        <source>Satellites in use</source>
        <translation>使用中的卫星</translation>
    </message>
    <message id="kiv-gps-first-seen">
        <source>First satellite in view after</source>
        <translation>首颗可见卫星用时</translation>
    </message>
    <message id="kiv-gps-first-used">
        <source>First satellite in use after</source>
        <translation>首颗使用卫星用时</translation>
    </message>
    <message id="kiv-sim-working">
        <source>Asking the telephony service</source>
        <translation>正在查询电话服务</translation>
    </message>
    <message id="kiv-sim-silent">
        <source>The telephony service reports no modem, or does not answer.</source>
        <translation>电话服务没有报告调制解调器，或没有应答。</translation>
    </message>
    <message id="kiv-sim-good">
        <source>Every SIM card could be read.</source>
        <translation>所有 SIM 卡均可读取。</translation>
    </message>
    <message id="kiv-sim-instructions-blind">
        <source>See in the phone&apos;s settings whether it knows its SIM card.</source>
        <translation>请在手机的设置中查看是否识别了 SIM 卡。</translation>
    </message>
    <message id="kiv-sim-instructions">
        <source>Every SIM slot needs a card. One that is locked has to be unlocked first.</source>
        <translation>每个 SIM 卡槽都要有卡。锁定的卡须先解锁。</translation>
    </message>
    <message id="kiv-sim-hint">
        <source>Pass unlocks when a SIM card has been read.</source>
        <translation>读取到 SIM 卡后才能判为合格。</translation>
    </message>
    <message id="kiv-sim-missing">
        <source>This phone has no modem.</source>
        <translation>本机没有调制解调器。</translation>
    </message>
    <message id="kiv-sim-cardless">
        <source>A SIM card is not there, is locked or cannot be read. Look after it, then ask again.</source>
        <translation>有 SIM 卡缺失、被锁定或无法读取。请处理后再次查询。</translation>
    </message>
    <message id="kiv-sim-again">
        <source>Ask again</source>
        <translation>再次查询</translation>
    </message>
    <message id="kiv-sim-card">
        <source>SIM card read</source>
        <translation>已读取 SIM 卡</translation>
    </message>
    <message id="kiv-sim-card-number">
        <source>SIM card %1 read</source>
        <translation>已读取 SIM 卡 %1</translation>
    </message>
    <message id="kiv-sim-home">
        <source>Network of the card</source>
        <extracomment>The country and the network, both as numbers, that a SIM card belongs to</extracomment>
        <translation>SIM 卡所属网络</translation>
    </message>
    <message id="kiv-sim-state">
        <source>Mobile network</source>
        <translation>移动网络</translation>
    </message>
    <message id="kiv-network-name">
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message id="kiv-network-strength">
        <source>Signal strength</source>
        <translation>信号强度</translation>
    </message>
    <message id="kiv-sim-cards">
        <source>SIM cards read</source>
        <translation>已读取的 SIM 卡数</translation>
    </message>
    <message id="kiv-usb-otg-good">
        <source>A drive was seen to come and go.</source>
        <translation>检测到 U 盘插入和拔出。</translation>
    </message>
    <message id="kiv-usb-otg-hint">
        <source>Pass unlocks when a drive was seen to come and go.</source>
        <translation>检测到 U 盘插入并拔出后才能判为合格。</translation>
    </message>
    <message id="kiv-usb-otg-missing">
        <source>This phone cannot take USB devices.</source>
        <translation>本机不支持 USB 外设。</translation>
    </message>
    <message id="kiv-usb-otg-step-plug">
        <source>Plug a USB drive in, with the adapter. If one is in already, pull it out first</source>
        <translation>用转接头插入 U 盘。如果已插有一个，请先拔出</translation>
    </message>
    <message id="kiv-usb-otg-step-pull">
        <source>Pull it out</source>
        <translation>将其拔出</translation>
    </message>
    <message id="kiv-usb-otg-late-gone">
        <source>The system has not announced that the drive is gone.</source>
        <translation>系统尚未报告 U 盘已移除。</translation>
    </message>
    <message id="kiv-usb-otg-late">
        <source>The system has not announced any drive.</source>
        <translation>系统尚未报告任何 U 盘。</translation>
    </message>
    <message id="kiv-usb-otg-drive">
        <source>USB drive</source>
        <translation>U 盘</translation>
    </message>
    <message id="kiv-usb-otg-there">
        <source>plugged in</source>
        <translation>已插入</translation>
    </message>
    <message id="kiv-usb-otg-none">
        <source>none seen</source>
        <translation>未检测到</translation>
    </message>
    <message id="kiv-wifi-good">
        <source>The address is in order, and the radio is connected to a network.</source>
        <translation>地址正常，且已连接到网络。</translation>
    </message>
    <message id="kiv-wifi-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds networks.</source>
        <translation>将地址与其格式比较。然后在手机的设置中查看能否找到网络。</translation>
    </message>
    <message id="kiv-wifi-instructions">
        <source>Switch Wi-Fi on and connect the phone to a network: the test passes by itself.</source>
        <translation>打开 Wi-Fi 并将手机连接到网络：测试将自动通过。</translation>
    </message>
    <message id="kiv-wifi-hint">
        <source>Pass unlocks when the address is in order and the radio was found.</source>
        <translation>地址正常且找到无线模块后才能判为合格。</translation>
    </message>
    <message id="kiv-wifi-missing">
        <source>This phone has no Wi-Fi.</source>
        <translation>本机没有 Wi-Fi。</translation>
    </message>
    <message id="kiv-wifi-unconnected">
        <source>The radio is there, but not connected. Without a network in reach, judge by the networks that the settings list.</source>
        <translation>无线模块存在，但未连接。如果附近没有可用网络，请根据设置中列出的网络判定。</translation>
    </message>
    <message id="kiv-wifi-connection">
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message id="kiv-zel-good">
        <source>The cover was seen to come and go. Its identifier: %1</source>
        <translation>检测到皮套装上和取下。其标识：%1</translation>
    </message>
    <message id="kiv-zel-nameless">
        <source>The cover was seen to come and go, but it did not tell its identifier.</source>
        <translation>检测到皮套装上和取下，但皮套没有提供标识。</translation>
    </message>
    <message id="kiv-zel-hint">
        <source>Pass unlocks when a cover was seen to come and go.</source>
        <translation>检测到皮套装上并取下后才能判为合格。</translation>
    </message>
    <message id="kiv-zel-missing">
        <source>This phone has no smart-cover service.</source>
        <translation>本机没有智能皮套服务。</translation>
    </message>
    <message id="kiv-zel-lost">
        <source>The smart-cover service does not answer.</source>
        <translation>智能皮套服务没有应答。</translation>
    </message>
    <message id="kiv-zel-not-ready">
        <source>The smart-cover service is not ready to recognise covers yet.</source>
        <translation>智能皮套服务尚未准备好识别皮套。</translation>
    </message>
    <message id="kiv-zel-step-dock">
        <source>Put a smart cover on the phone</source>
        <translation>将智能皮套装到手机上</translation>
    </message>
    <message id="kiv-zel-step-remove">
        <source>Take it off again</source>
        <translation>再将其取下</translation>
    </message>
    <message id="kiv-zel-service">
        <source>Smart-cover service</source>
        <translation>智能皮套服务</translation>
    </message>
    <message id="kiv-zel-ready">
        <source>Ready for covers</source>
        <translation>可识别皮套</translation>
    </message>
    <message id="kiv-zel-docked">
        <source>Cover on the phone</source>
        <translation>皮套已装上</translation>
    </message>
    <message id="kiv-zel-identifier">
        <source>Identifier of the cover</source>
        <translation>皮套标识</translation>
    </message>
    <message id="kiv-sim-modem-count">
        <source>Modems</source>
        <translation>调制解调器</translation>
    </message>
    <message id="kiv-challenge-mistake">
        <source>Shown: %1, answered: %2</source>
        <extracomment>A wrong answer: what was shown and what the operator said</extracomment>
        <translation>显示：%1，回答：%2</translation>
    </message>
    <message id="kiv-challenge-second">
        <source>That was not right. You have one more try, with something new.</source>
        <translation>答得不对。还有一次机会，内容会更换。</translation>
    </message>
    <message id="kiv-challenge-round">
        <source>Answer %1 of %2</source>
        <extracomment>How far the operator is with a question that is asked several times</extracomment>
        <translation>第 %1 次回答，共 %2 次</translation>
    </message>
    <message id="kiv-checks-position">
        <source>Question %1 of %2</source>
        <extracomment>How far the operator is with a list of questions</extracomment>
        <translation>第 %1 题，共 %2 题</translation>
    </message>
    <message id="kiv-checks-yes">
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message id="kiv-checks-no">
        <source>No</source>
        <translation>否</translation>
    </message>
    <message id="kiv-data-missing">
        <source>No modem was found, so there is no mobile data.</source>
        <translation>未找到调制解调器，因此没有移动数据。</translation>
    </message>
    <message id="kiv-data-instructions">
        <source>Switch Wi-Fi off and mobile data on, open a web page that was not open before, and switch Wi-Fi on again.</source>
        <translation>关闭 Wi-Fi 并打开移动数据，打开一个之前没有打开过的网页，然后重新打开 Wi-Fi。</translation>
    </message>
    <message id="kiv-data-note">
        <source>Kiv cannot tell over which radio a page comes. Where the phone has two SIM cards, try each.</source>
        <translation>Kiv 无法得知网页是通过哪种无线方式加载的。如果手机有两张 SIM 卡，请逐一测试。</translation>
    </message>
    <message id="kiv-data-good">
        <source>The operator loaded a web page over mobile data.</source>
        <translation>操作员通过移动数据加载了网页。</translation>
    </message>
    <message id="kiv-data-loaded">
        <source>SIM card %1: did the web page load without Wi-Fi?</source>
        <translation>SIM 卡 %1：关闭 Wi-Fi 后网页加载出来了吗？</translation>
    </message>
    <message id="kiv-data-loaded-bad">
        <source>SIM card %1: nothing was loaded over mobile data.</source>
        <translation>SIM 卡 %1：通过移动数据无法加载任何内容。</translation>
    </message>
    <message id="kiv-data-broke">
        <source>SIM card %1: did the connection break off meanwhile?</source>
        <translation>SIM 卡 %1：其间连接是否中断过？</translation>
    </message>
    <message id="kiv-data-broke-bad">
        <source>SIM card %1: the mobile connection broke off.</source>
        <translation>SIM 卡 %1：移动数据连接中断过。</translation>
    </message>
    <message id="kiv-voice-heard">
        <source>SIM card %1: could you hear the other end?</source>
        <translation>SIM 卡 %1：您能听到对方吗？</translation>
    </message>
    <message id="kiv-voice-heard-bad">
        <source>SIM card %1: the other end could not be heard.</source>
        <translation>SIM 卡 %1：听不到对方。</translation>
    </message>
    <message id="kiv-voice-clear">
        <source>SIM card %1: did the call break off, crackle or echo?</source>
        <translation>SIM 卡 %1：通话是否中断、有杂音或回声？</translation>
    </message>
    <message id="kiv-voice-clear-bad">
        <source>SIM card %1: the call broke off, crackled or echoed.</source>
        <translation>SIM 卡 %1：通话中断、有杂音或回声。</translation>
    </message>
    <message id="kiv-voice-spoke">
        <source>SIM card %1: could the other end hear you?</source>
        <translation>SIM 卡 %1：对方能听到您吗？</translation>
    </message>
    <message id="kiv-voice-spoke-bad">
        <source>SIM card %1: the other end heard nothing.</source>
        <translation>SIM 卡 %1：对方什么也听不到。</translation>
    </message>
    <message id="kiv-voice-missing">
        <source>No modem was found, so no call can be made.</source>
        <translation>未找到调制解调器，因此无法通话。</translation>
    </message>
    <message id="kiv-voice-instructions">
        <source>Call a second phone or a test line with the phone&apos;s own dialler, speak for a moment, and hang up.</source>
        <translation>用手机自带的拨号程序拨打另一部手机或测试号码，讲几句话，然后挂断。</translation>
    </message>
    <message id="kiv-voice-note">
        <source>Kiv makes no calls by itself. Where the phone has two SIM cards, call with each.</source>
        <translation>Kiv 自身不拨打电话。如果手机有两张 SIM 卡，请用每张卡各拨打一次。</translation>
    </message>
    <message id="kiv-voice-good">
        <source>The operator made a call and both ends heard each other.</source>
        <translation>操作员进行了通话，双方都能听到对方。</translation>
    </message>
    <message id="kiv-guided-hint">
        <source>Pass unlocks when you have answered the questions.</source>
        <translation>回答问题后才能判为合格。</translation>
    </message>
    <message id="kiv-reboot-missing">
        <source>The system does not tell when it was started.</source>
        <translation>系统没有提供启动时间。</translation>
    </message>
    <message id="kiv-reboot-instructions">
        <source>Restart the phone with its power key or its menu. When it is up again, start Kiv and open this test anew.</source>
        <translation>用电源键或菜单重启手机。启动完成后打开 Kiv，重新打开此项测试。</translation>
    </message>
    <message id="kiv-reboot-hint">
        <source>Pass unlocks when the phone was restarted a short while ago and you have answered the questions.</source>
        <translation>手机刚刚重启过且回答问题后才能判为合格。</translation>
    </message>
    <message id="kiv-reboot-note">
        <source>A restart ends Kiv, and the verdicts that are not kept elsewhere are gone: do this test first or by itself.</source>
        <translation>重启会结束 Kiv，未在别处保存的判定将丢失：请最先或单独进行此项测试。</translation>
    </message>
    <message id="kiv-reboot-first">
        <source>Did the phone come up at the first try, up to its usual screen?</source>
        <translation>手机是否第一次就启动成功，并进入平常的界面？</translation>
    </message>
    <message id="kiv-reboot-first-bad">
        <source>The phone did not come up at the first try.</source>
        <translation>手机第一次没有启动成功。</translation>
    </message>
    <message id="kiv-reboot-error">
        <source>Did it show an error, or ask for anything that it did not ask for before?</source>
        <translation>是否显示了错误，或询问了以前没有询问过的内容？</translation>
    </message>
    <message id="kiv-reboot-error-bad">
        <source>The phone showed an error while it started.</source>
        <translation>手机启动时显示了错误。</translation>
    </message>
    <message id="kiv-reboot-good">
        <source>The phone was restarted and came up again.</source>
        <translation>手机已重启并重新启动成功。</translation>
    </message>
    <message id="kiv-reboot-age">
        <source>Since the start</source>
        <translation>启动以来</translation>
    </message>
    <message id="kiv-suspend-good">
        <source>The phone slept and woke up: %1 s</source>
        <translation>手机休眠后被唤醒：%1 秒</translation>
    </message>
    <message id="kiv-suspend-instructions">
        <source>Unplug the charger and press the power key, so that the panel goes dark. Wait half a minute, then wake the phone.</source>
        <translation>拔下充电器并按电源键使屏幕熄灭。等待半分钟，然后唤醒手机。</translation>
    </message>
    <message id="kiv-suspend-hint">
        <source>Pass unlocks when the phone has slept.</source>
        <translation>手机休眠过后才能判为合格。</translation>
    </message>
    <message id="kiv-suspend-missing">
        <source>The mode-control service does not answer, so nobody knows whether the phone has slept.</source>
        <translation>模式控制服务没有应答，因此无法得知手机是否休眠过。</translation>
    </message>
    <message id="kiv-suspend-step-sleep">
        <source>Let the phone sleep</source>
        <translation>让手机休眠</translation>
    </message>
    <message id="kiv-suspend-step-wake">
        <source>Wake it</source>
        <translation>唤醒手机</translation>
    </message>
    <message id="kiv-suspend-note">
        <source>A phone that charges or that a computer is connected to stays awake behind its dark panel.</source>
        <translation>正在充电或连接着电脑的手机，即使屏幕熄灭也保持唤醒。</translation>
    </message>
    <message id="kiv-suspend-total">
        <source>Slept since the phone was started</source>
        <translation>开机以来的休眠时间</translation>
    </message>
    <message id="kiv-suspend-since">
        <source>Slept during this test</source>
        <translation>本次测试中的休眠时间</translation>
    </message>
    <message id="kiv-resistance-missing">
        <source>The battery&apos;s voltage and current cannot be read here.</source>
        <translation>此处无法读取电池的电压和电流。</translation>
    </message>
    <message id="kiv-resistance-good">
        <source>The battery&apos;s internal resistance is in order.</source>
        <translation>电池内阻正常。</translation>
    </message>
    <message id="kiv-resistance-hint">
        <source>Pass unlocks when the resistance has been measured.</source>
        <translation>测量内阻后才能判为合格。</translation>
    </message>
    <message id="kiv-resistance-off">
        <source>The settings of this phone do not ask for this test.</source>
        <translation>本机的设置不要求此项测试。</translation>
    </message>
    <message id="kiv-resistance-step-on">
        <source>Measuring with the charger on: leave phone and charger alone</source>
        <translation>充电打开时测量：请勿动手机和充电器</translation>
    </message>
    <message id="kiv-resistance-step-off">
        <source>Measuring with the charger off</source>
        <translation>充电关闭时测量</translation>
    </message>
    <message id="kiv-resistance-step-again">
        <source>Measuring with the charger on again</source>
        <translation>充电重新打开时测量</translation>
    </message>
    <message id="kiv-resistance-voltage-on">
        <source>Voltage, charger on</source>
        <translation>电压（充电打开）</translation>
    </message>
    <message id="kiv-resistance-voltage-off">
        <source>Voltage, charger off</source>
        <translation>电压（充电关闭）</translation>
    </message>
    <message id="kiv-resistance-step">
        <source>Step of the current</source>
        <translation>电流变化量</translation>
    </message>
    <message id="kiv-resistance">
        <source>Internal resistance</source>
        <translation>内阻</translation>
    </message>
    <message id="kiv-keylight-instructions">
        <source>Look at the keys beside the panel. If they have no light, choose Skip.</source>
        <translation>看屏幕旁边的按键。如果按键没有背光，请选择“跳过”。</translation>
    </message>
    <message id="kiv-keylight-note">
        <source>Kiv cannot switch this light: the phone lights the keys after a touch and darkens them again.</source>
        <translation>Kiv 无法控制此灯：触摸后手机会点亮按键，之后再熄灭。</translation>
    </message>
    <message id="kiv-keylight-step-touch">
        <source>Touch the field below</source>
        <translation>触摸下面的区域</translation>
    </message>
    <message id="kiv-keylight-step-rest">
        <source>Keep your hands off: %1 s</source>
        <translation>请勿触摸：%1 秒</translation>
    </message>
    <message id="kiv-keylight-touch">
        <source>Touch here</source>
        <translation>触摸此处</translation>
    </message>
    <message id="kiv-keylight-lit">
        <source>Are the keys lit now?</source>
        <translation>按键现在亮着吗？</translation>
    </message>
    <message id="kiv-keylight-lit-bad">
        <source>The keys do not light up after a touch.</source>
        <translation>触摸后按键不亮。</translation>
    </message>
    <message id="kiv-keylight-stayed">
        <source>Did the keys stay lit while you kept your hands off?</source>
        <translation>您没有触摸时，按键是否一直亮着？</translation>
    </message>
    <message id="kiv-keylight-stayed-bad">
        <source>The keys stay lit.</source>
        <translation>按键一直亮着。</translation>
    </message>
    <message id="kiv-keylight-equal">
        <source>Were all of them lit equally bright?</source>
        <translation>所有按键的亮度是否一致？</translation>
    </message>
    <message id="kiv-keylight-equal-bad">
        <source>Not all keys are lit equally bright.</source>
        <translation>并非所有按键亮度一致。</translation>
    </message>
    <message id="kiv-keylight-good">
        <source>The operator saw the keys light up and go out.</source>
        <translation>操作员看到按键亮起并熄灭。</translation>
    </message>
    <message id="kiv-fingerprint-missing">
        <source>This phone has no fingerprint reader.</source>
        <translation>本机没有指纹识别器。</translation>
    </message>
    <message id="kiv-fingerprint-instructions">
        <source>Open the fingerprints in the phone&apos;s settings. Enrol one finger, lock the phone, and touch the reader with this finger and with another one.</source>
        <translation>在手机的设置中打开指纹。录入一根手指，锁定手机，然后分别用该手指和另一根手指触摸识别器。</translation>
    </message>
    <message id="kiv-fingerprint-note">
        <source>Kiv cannot reach the reader: the phone keeps fingerprints to itself. Remove the finger from the settings afterwards.</source>
        <translation>Kiv 无法访问识别器：手机不对外提供指纹。测试后请在设置中删除该手指。</translation>
    </message>
    <message id="kiv-fingerprint-good">
        <source>The operator saw the reader know one finger and refuse another.</source>
        <translation>操作员看到识别器认出一根手指并拒绝了另一根。</translation>
    </message>
    <message id="kiv-fingerprint-enrolled">
        <source>Could the finger be enrolled?</source>
        <translation>手指录入成功了吗？</translation>
    </message>
    <message id="kiv-fingerprint-enrolled-bad">
        <source>The finger could not be enrolled.</source>
        <translation>无法录入手指。</translation>
    </message>
    <message id="kiv-fingerprint-other">
        <source>Did another finger unlock the phone?</source>
        <translation>另一根手指是否解锁了手机？</translation>
    </message>
    <message id="kiv-fingerprint-other-bad">
        <source>A finger that was not enrolled unlocked the phone.</source>
        <translation>未录入的手指解锁了手机。</translation>
    </message>
    <message id="kiv-fingerprint-known">
        <source>Did the enrolled finger unlock the phone?</source>
        <translation>录入的手指是否解锁了手机？</translation>
    </message>
    <message id="kiv-fingerprint-known-bad">
        <source>The enrolled finger did not unlock the phone.</source>
        <translation>录入的手指没有解锁手机。</translation>
    </message>
    <message id="kiv-lcd-instructions">
        <source>Look at every picture for dots, lines and stains. Tap for the next one. At the end, count the dots.</source>
        <translation>查看每幅画面中是否有坏点、线条和斑块。点按显示下一幅。最后数出圆点。</translation>
    </message>
    <message id="kiv-lcd-hint">
        <source>Pass unlocks when you have seen the pictures, counted the dots and answered the questions.</source>
        <translation>看过画面、数出圆点并回答问题后才能判为合格。</translation>
    </message>
    <message id="kiv-lcd-next">
        <source>Next picture</source>
        <translation>下一幅</translation>
    </message>
    <message id="kiv-lcd-question">
        <source>How many dots were on the panel?</source>
        <translation>屏幕上有几个圆点？</translation>
    </message>
    <message id="kiv-lcd-again">
        <source>Show the dots again</source>
        <translation>再次显示圆点</translation>
    </message>
    <message id="kiv-lcd-spot">
        <source>Was a dot, line or stain in a picture that does not belong there?</source>
        <translation>画面中是否有不该有的点、线条或斑块？</translation>
    </message>
    <message id="kiv-lcd-spot-bad">
        <source>The panel has a dot, line or stain.</source>
        <translation>屏幕有坏点、线条或斑块。</translation>
    </message>
    <message id="kiv-lcd-shades">
        <source>Were all colours and shades there, without steps?</source>
        <translation>所有颜色和灰阶是否齐全且过渡平滑？</translation>
    </message>
    <message id="kiv-lcd-shades-bad">
        <source>Colours or shades were missing.</source>
        <translation>缺少颜色或灰阶。</translation>
    </message>
    <message id="kiv-lcd-good">
        <source>The operator counted the dots and found no fault in the pictures.</source>
        <translation>操作员数对了圆点，画面中未发现缺陷。</translation>
    </message>
    <message id="kiv-lcd-pictures-again">
        <source>Show the pictures again</source>
        <translation>再次显示画面</translation>
    </message>
    <message id="kiv-backlight-instructions">
        <source>Look at the white panel: is the light even up to the edges? Tap, and watch whether it becomes brighter or darker.</source>
        <translation>看白色屏幕：光线到边缘是否均匀？点按屏幕，观察变亮还是变暗。</translation>
    </message>
    <message id="kiv-backlight-note">
        <source>Kiv cannot change the backlight. It is the picture that becomes brighter or darker: what it shows is that the panel is lit and that you looked.</source>
        <translation>Kiv 无法改变背光。变亮或变暗的是画面：这说明屏幕亮着，而且您看了。</translation>
    </message>
    <message id="kiv-backlight-question">
        <source>What has the panel become?</source>
        <translation>屏幕变得怎样了？</translation>
    </message>
    <message id="kiv-backlight-brighter">
        <source>Brighter</source>
        <translation>变亮</translation>
    </message>
    <message id="kiv-backlight-darker">
        <source>Darker</source>
        <translation>变暗</translation>
    </message>
    <message id="kiv-backlight-again">
        <source>Show it again</source>
        <translation>再显示一遍</translation>
    </message>
    <message id="kiv-backlight-uneven">
        <source>Was the white uneven, or did it flicker?</source>
        <translation>白色画面是否有明暗不均或闪烁？</translation>
    </message>
    <message id="kiv-backlight-uneven-bad">
        <source>The backlight is uneven or flickers.</source>
        <translation>背光明暗不均或闪烁。</translation>
    </message>
    <message id="kiv-backlight-follows">
        <source>Set the brightness in the phone&apos;s own settings to the lowest and the highest. Does the light follow?</source>
        <translation>在手机的设置中将亮度调到最低和最高。光线是否随之变化？</translation>
    </message>
    <message id="kiv-backlight-follows-bad">
        <source>The backlight does not follow the phone&apos;s brightness setting.</source>
        <translation>背光不随手机的亮度设置变化。</translation>
    </message>
    <message id="kiv-backlight-good">
        <source>The operator saw an even light that follows the brightness setting.</source>
        <translation>操作员看到光线均匀并随亮度设置变化。</translation>
    </message>
    <message id="kiv-backlight-white-again">
        <source>Show the white panel again</source>
        <translation>再次显示白色屏幕</translation>
    </message>
    <message id="kiv-led-dark">
        <source>The light stayed dark while the phone was charging.</source>
        <translation>手机充电时指示灯不亮。</translation>
    </message>
    <message id="kiv-led-instructions">
        <source>Plug a charger in: the phone then lights its notification light.</source>
        <translation>插入充电器：手机随后点亮通知指示灯。</translation>
    </message>
    <message id="kiv-led-hint">
        <source>Pass unlocks when you have said what the light does.</source>
        <translation>回答指示灯的情况后才能判为合格。</translation>
    </message>
    <message id="kiv-led-colour">
        <source>Light while charging</source>
        <translation>充电时的灯光</translation>
    </message>
    <message id="kiv-led-note">
        <source>Kiv cannot switch this light: it shows what the phone wants to tell, such as that it charges.</source>
        <translation>Kiv 无法控制此灯：它显示手机要通知的内容，例如正在充电。</translation>
    </message>
    <message id="kiv-led-step-colour">
        <source>Say what the light does</source>
        <translation>回答指示灯的情况</translation>
    </message>
    <message id="kiv-led-step-unplug">
        <source>Unplug the charger</source>
        <translation>拔下充电器</translation>
    </message>
    <message id="kiv-led-plugged">
        <source>The charger is plugged in</source>
        <translation>充电器已插入</translation>
    </message>
    <message id="kiv-led-unplugged">
        <source>The charger is unplugged</source>
        <translation>充电器已拔下</translation>
    </message>
    <message id="kiv-led-question">
        <source>What does the light show?</source>
        <translation>指示灯显示什么？</translation>
    </message>
    <message id="kiv-led-red">
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message id="kiv-led-orange">
        <source>Orange or yellow</source>
        <translation>橙或黄</translation>
    </message>
    <message id="kiv-led-green">
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message id="kiv-led-blue">
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message id="kiv-led-white">
        <source>White</source>
        <translation>白</translation>
    </message>
    <message id="kiv-led-nothing">
        <source>Nothing</source>
        <translation>不亮</translation>
    </message>
    <message id="kiv-led-lit">
        <source>It is lit</source>
        <translation>亮着</translation>
    </message>
    <message id="kiv-led-still">
        <source>Is the light still lit as before?</source>
        <translation>指示灯是否仍像之前一样亮着？</translation>
    </message>
    <message id="kiv-led-still-bad">
        <source>The light does not change when the charger is unplugged.</source>
        <translation>拔下充电器后指示灯没有变化。</translation>
    </message>
    <message id="kiv-led-good">
        <source>The operator saw the light while the phone charged (%1), and saw it go out.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>操作员看到指示灯在充电时亮起（%1），之后熄灭。</translation>
    </message>
    <message id="kiv-vibrator-none">
        <source>None</source>
        <translation>没有</translation>
    </message>
    <message id="kiv-summary-code">
        <source>Code for the station</source>
        <translation>工位扫描码</translation>
    </message>
    <message id="kiv-code-copy">
        <source>Copy the text</source>
        <translation>复制文本</translation>
    </message>
    <message id="kiv-code-close">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message id="kiv-plot-range">
        <source>%1 to %2</source>
        <extracomment>The least and the greatest reading so far</extracomment>
        <translation>%1 至 %2</translation>
    </message>
    <message id="kiv-mode-engineer">
        <source>Engineer&apos;s view</source>
        <translation>工程师视图</translation>
    </message>
    <message id="kiv-engineer-raw">
        <source>Raw values</source>
        <translation>原始值</translation>
    </message>
    <message id="kiv-engineer-settings">
        <source>Settings that were found</source>
        <translation>找到的设置</translation>
    </message>
    <message id="kiv-engineer-probe">
        <source>Look what the phone has</source>
        <translation>检查本机具备的部件</translation>
    </message>
    <message id="kiv-engineer-tests">
        <source>Tests</source>
        <translation>测试</translation>
    </message>
    <message id="kiv-engineer-processes">
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message id="kiv-mode-engineer-detail">
        <source>Raw values, the settings that were found, sound streams and processes</source>
        <translation>原始值、找到的设置、音频流和进程</translation>
    </message>
    <message id="kiv-run-in-stuck">
        <source>The test did not begin in time.</source>
        <translation>测试未能及时开始。</translation>
    </message>
    <message id="kiv-run-in-exercised">
        <source>It ran without trouble.</source>
        <translation>运行无异常。</translation>
    </message>
    <message id="kiv-run-in-timeout">
        <source>It came to no result in time.</source>
        <translation>未能及时得出结果。</translation>
    </message>
    <message id="kiv-run-in-end-time">
        <source>The time is up.</source>
        <translation>时间已到。</translation>
    </message>
    <message id="kiv-run-in-end-failure">
        <source>It stopped at the first failure.</source>
        <translation>在首次不合格时停止。</translation>
    </message>
    <message id="kiv-run-in-end-temperature">
        <source>The battery reached %1.</source>
        <extracomment>A temperature</extracomment>
        <translation>电池温度达到 %1。</translation>
    </message>
    <message id="kiv-run-in-end-restart">
        <source>The phone&apos;s start time was %1 at the beginning and %2 at the end: it was restarted, or its clock was set.</source>
        <extracomment>Two times at which the phone was started</extracomment>
        <translation>开始时手机的启动时间为 %1，结束时为 %2：手机曾重启，或时钟被调整。</translation>
    </message>
    <message id="kiv-run-in-end-operator">
        <source>The operator ended it.</source>
        <translation>由操作员结束。</translation>
    </message>
    <message id="kiv-run-in-progress">
        <source>Loop %1, test %2 of %3</source>
        <extracomment>The run-in: number of the loop, place of the test in it, number of tests</extracomment>
        <translation>第 %1 轮，第 %2 项，共 %3 项</translation>
    </message>
    <message id="kiv-test-clock">
        <source>Time left: %1</source>
        <extracomment>Time until the operator is asked how to go on</extracomment>
        <translation>剩余时间：%1</translation>
    </message>
    <message id="kiv-run-in-intro">
        <source>Hours: %1. Meanwhile the phone repeats these tests and needs nobody:</source>
        <extracomment>A number of hours</extracomment>
        <translation>小时数：%1。其间手机自动重复以下测试，无需看管：</translation>
    </message>
    <message id="kiv-run-in-empty">
        <source>No test of the run-in can run on this phone.</source>
        <translation>没有老化测试可在本机运行。</translation>
    </message>
    <message id="kiv-run-in-attended">
        <source>These need an operator and stay not tested: %1</source>
        <extracomment>Names of tests</extracomment>
        <translation>以下测试需要操作员，结果仍为“未测试”：%1</translation>
    </message>
    <message id="kiv-run-in-stop-on-failure">
        <source>Stop at the first failure</source>
        <translation>首次不合格即停止</translation>
    </message>
    <message id="kiv-run-in-go-on">
        <source>Go on after a failure</source>
        <translation>不合格后继续</translation>
    </message>
    <message id="kiv-run-in-limit">
        <source>Stop when the battery reaches %1</source>
        <extracomment>A temperature</extracomment>
        <translation>电池温度达到 %1 时停止</translation>
    </message>
    <message id="kiv-run-in-no-limit">
        <source>Do not stop for the battery&apos;s temperature</source>
        <translation>不因电池温度停止</translation>
    </message>
    <message id="kiv-run-in-machine-start">
        <source>This phone was started on %1. A run-in that began earlier and left no result was ended by that start.</source>
        <extracomment>A date and time</extracomment>
        <translation>本机启动于 %1。在此之前开始且没有留下结果的老化测试，是被这次启动中断的。</translation>
    </message>
    <message id="kiv-run-in-total">
        <source>Loops: %1, time: %2</source>
        <extracomment>How far the run-in came: loops and time</extracomment>
        <translation>轮数：%1，时间：%2</translation>
    </message>
    <message id="kiv-run-in-failure">
        <source>%1, loop %2</source>
        <extracomment>A test that failed, and the number of the loop</extracomment>
        <translation>%1，第 %2 轮</translation>
    </message>
    <message id="kiv-run-in-stop">
        <source>End the run-in</source>
        <translation>结束老化测试</translation>
    </message>
    <message id="kiv-duration-seconds">
        <source>%1 s</source>
        <extracomment>A duration</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message id="kiv-duration-minutes">
        <source>%1 min %2 s</source>
        <extracomment>A duration: minutes and seconds</extracomment>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message id="kiv-summary-absent">
        <source>Not on this phone: %1</source>
        <extracomment>The features that the phone&apos;s configuration and a look at its hardware rule out</extracomment>
        <translation>本机没有：%1</translation>
    </message>
    <message id="kiv-summary-timed-out">
        <source>The time had run out</source>
        <translation>时间已用完</translation>
    </message>
    <message id="kiv-summary-totals">
        <source>Attempts: %1, time: %2</source>
        <extracomment>Totals of a sequence: how many attempts, how long</extracomment>
        <translation>尝试次数：%1，时间：%2</translation>
    </message>
    <message id="kiv-overrule-title">
        <source>Why against this verdict?</source>
        <translation>为何与此结论相反？</translation>
    </message>
    <message id="kiv-overrule-text">
        <source>Verdict so far: %1. The summary will show that you decided otherwise.</source>
        <extracomment>The page&apos;s own verdict, from what it measured or what the operator answered</extracomment>
        <translation>目前的结论：%1。汇总中将显示您作出了不同的判定。</translation>
    </message>
    <message id="kiv-overrule-equipment">
        <source>A tool or an accessory was at fault</source>
        <translation>工具或配件有问题</translation>
    </message>
    <message id="kiv-overrule-limits">
        <source>The limits do not suit this model</source>
        <translation>限值不适合该机型</translation>
    </message>
    <message id="kiv-overrule-perceived">
        <source>I saw, heard or felt it otherwise</source>
        <translation>我看到、听到或感觉到的不同</translation>
    </message>
    <message id="kiv-overrule-supervisor">
        <source>A supervisor decided so</source>
        <translation>由主管决定</translation>
    </message>
    <message id="kiv-overrule-cancel">
        <source>Keep this verdict</source>
        <translation>保留此结论</translation>
    </message>
    <message id="kiv-skip-title">
        <source>Why is this test skipped?</source>
        <translation>为何跳过此项测试？</translation>
    </message>
    <message id="kiv-skip-text">
        <source>It stays not tested unless the phone is not meant to have this part.</source>
        <translation>除非手机本来就没有此部件，否则结果仍为“未测试”。</translation>
    </message>
    <message id="kiv-skip-equipment">
        <source>An accessory or a tool is missing</source>
        <translation>缺少配件或工具</translation>
    </message>
    <message id="kiv-skip-repair">
        <source>The phone has to be repaired first</source>
        <translation>手机须先维修</translation>
    </message>
    <message id="kiv-skip-later">
        <source>It is tested elsewhere or later</source>
        <translation>在别处或以后测试</translation>
    </message>
    <message id="kiv-skip-not-fitted">
        <source>This model is not meant to have this part</source>
        <translation>该机型本来就没有此部件</translation>
    </message>
    <message id="kiv-skip-cancel">
        <source>Go on testing</source>
        <translation>继续测试</translation>
    </message>
    <message id="kiv-timeout-title">
        <source>Time is up</source>
        <translation>时间到</translation>
    </message>
    <message id="kiv-timeout-text">
        <source>%1 has no verdict yet.</source>
        <extracomment>Name of a test</extracomment>
        <translation>%1 还没有判定。</translation>
    </message>
    <message id="kiv-timeout-wait">
        <source>Give it more time</source>
        <translation>延长时间</translation>
    </message>
    <message id="kiv-verdict-skip">
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message id="kiv-camera-dark">
        <source>The camera delivers no picture.</source>
        <translation>摄像头没有图像。</translation>
    </message>
    <message id="kiv-camera-instructions">
        <source>Move the phone a little and watch the picture. Tap it to see it large.</source>
        <translation>稍微移动手机并观察图像。点按图像可放大。</translation>
    </message>
    <message id="kiv-camera-working">
        <source>Looking for the camera</source>
        <translation>正在查找摄像头</translation>
    </message>
    <message id="kiv-camera-question">
        <source>What does the picture do when you move the phone?</source>
        <translation>移动手机时图像如何变化？</translation>
    </message>
    <message id="kiv-camera-live">
        <source>It follows</source>
        <translation>随之移动</translation>
    </message>
    <message id="kiv-camera-still">
        <source>It stands still</source>
        <translation>静止不动</translation>
    </message>
    <message id="kiv-camera-light">
        <source>Is the light beside the camera on?</source>
        <translation>摄像头旁边的灯亮着吗？</translation>
    </message>
    <message id="kiv-camera-stains">
        <source>Are there stains, stripes or wrong colours in the picture?</source>
        <translation>图像中是否有斑块、条纹或颜色错误？</translation>
    </message>
    <message id="kiv-camera-stains-bad">
        <source>The picture has stains, stripes or wrong colours.</source>
        <translation>图像有斑块、条纹或颜色错误。</translation>
    </message>
    <message id="kiv-camera-sharp">
        <source>Is it sharp?</source>
        <translation>图像清晰吗？</translation>
    </message>
    <message id="kiv-camera-sharp-bad">
        <source>The picture is not sharp.</source>
        <translation>图像不清晰。</translation>
    </message>
    <message id="kiv-camera-flash">
        <source>The camera lets nobody switch its light. Take a picture with flash in the phone&apos;s own camera program: does it flash?</source>
        <translation>无法控制摄像头的灯。请用手机自带的相机程序开启闪光灯拍照：闪光灯闪光吗？</translation>
    </message>
    <message id="kiv-camera-flash-bad">
        <source>The camera does not flash.</source>
        <translation>闪光灯不闪光。</translation>
    </message>
    <message id="kiv-camera-good">
        <source>The operator saw a live picture without faults.</source>
        <translation>操作员看到实时图像，没有缺陷。</translation>
    </message>
    <message id="kiv-camera-back-missing">
        <source>No back camera was found.</source>
        <translation>未找到后置摄像头。</translation>
    </message>
    <message id="kiv-camera-front-missing">
        <source>No front camera was found.</source>
        <translation>未找到前置摄像头。</translation>
    </message>
    <message id="kiv-video-stopped">
        <source>The video stopped: %1</source>
        <translation>视频停止：%1</translation>
    </message>
    <message id="kiv-video-missing">
        <source>The system has no decoder for the test video (%1): install one, or test with a video of the phone&apos;s own.</source>
        <extracomment>The names of the codecs that were tried</extracomment>
        <translation>系统没有测试视频的解码器（%1）：请安装，或用手机中的视频测试。</translation>
    </message>
    <message id="kiv-video-instructions">
        <source>Watch the video and count the squares that cross the picture.</source>
        <translation>观看视频，数一数有几个方块穿过画面。</translation>
    </message>
    <message id="kiv-video-question">
        <source>How many squares crossed the picture?</source>
        <translation>有几个方块穿过画面？</translation>
    </message>
    <message id="kiv-video-jerk">
        <source>Did the picture jerk, tear or show blocks?</source>
        <translation>画面是否卡顿、撕裂或出现马赛克？</translation>
    </message>
    <message id="kiv-video-jerk-bad">
        <source>The video jerks, tears or shows blocks.</source>
        <translation>视频卡顿、撕裂或出现马赛克。</translation>
    </message>
    <message id="kiv-video-good">
        <source>The operator saw the video run smoothly.</source>
        <translation>操作员看到视频播放流畅。</translation>
    </message>
    <message id="kiv-video-format">
        <source>Decoder</source>
        <translation>解码器</translation>
    </message>
    <message id="kiv-video-played">
        <source>Played</source>
        <translation>已播放</translation>
    </message>
    <message id="kiv-bluetooth-searched">
        <source>The address is in order, and the radio searched.</source>
        <translation>地址正常，且蓝牙已搜索。</translation>
    </message>
    <message id="kiv-wifi-found">
        <source>The address is in order, and the radio was found.</source>
        <translation>地址正常，且找到无线模块。</translation>
    </message>
    <message id="kiv-layout-direction">
        <source>LTR</source>
        <extracomment>&quot;LTR&quot;, or &quot;RTL&quot; for a language that is written from right to left</extracomment>
        <translation>LTR</translation>
    </message>
    <message id="kiv-wifi-working">
        <source>Asking for the Wi-Fi radio</source>
        <translation>正在查询 Wi-Fi 模块</translation>
    </message>
    <message id="kiv-run-in-heat-unknown">
        <source>The battery&apos;s temperature cannot be read: heat will not stop the run-in.</source>
        <translation>无法读取电池温度：老化测试不会因过热而停止。</translation>
    </message>
    <message id="kiv-run-in-again">
        <source>A test failed meanwhile: the run-in has to be done again.</source>
        <translation>期间有测试不合格：必须重新进行老化测试。</translation>
    </message>
    <message id="kiv-summary-failed-loops">
        <source>Failed in the run-in, loop %1</source>
        <extracomment>Numbers of loops</extracomment>
        <translation>老化测试中不合格，第 %1 轮</translation>
    </message>
    <message id="kiv-summary-failed-attempts">
        <source>Attempts that failed: %1</source>
        <translation>不合格的尝试：%1</translation>
    </message>
    <message id="kiv-led-switching">
        <source>Switching charging</source>
        <translation>正在切换充电</translation>
    </message>
    <message id="kiv-led-step-switch">
        <source>Say what it does while Kiv switches charging off and on</source>
        <translation>Kiv 关闭和打开充电时，回答指示灯的情况</translation>
    </message>
    <message id="kiv-led-good-switched">
        <source>The operator saw the light while the phone charged (%1), and dark whenever Kiv had switched charging off.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>操作员看到充电时指示灯亮起（%1），并且每次 Kiv 关闭充电时指示灯都熄灭。</translation>
    </message>
    <message id="kiv-led-by-hand">
        <source>The answers do not fit: perhaps this light does not follow the charging. Look again, and unplug the charger yourself.</source>
        <translation>回答不一致：此指示灯可能不随充电变化。请再看一次，并自己拔下充电器。</translation>
    </message>
    <message id="kiv-key-volume-up">
        <source>Volume up</source>
        <translation>音量加键</translation>
    </message>
    <message id="kiv-key-volume-down">
        <source>Volume down</source>
        <translation>音量减键</translation>
    </message>
    <message id="kiv-key-power">
        <source>Power key</source>
        <translation>电源键</translation>
    </message>
    <message id="kiv-key-camera">
        <source>Camera key</source>
        <translation>相机键</translation>
    </message>
    <message id="kiv-key-focus">
        <source>Camera key, half pressed</source>
        <translation>相机键（半按）</translation>
    </message>
    <message id="kiv-key-home">
        <source>Home key</source>
        <translation>主屏幕键</translation>
    </message>
    <message id="kiv-key-back">
        <source>Back key</source>
        <translation>返回键</translation>
    </message>
    <message id="kiv-key-menu">
        <source>Menu key</source>
        <translation>菜单键</translation>
    </message>
    <message id="kiv-key-search">
        <source>Search key</source>
        <translation>搜索键</translation>
    </message>
    <message id="kiv-list-separator">
        <source>, </source>
        <extracomment>Between the words of a list, with its blank</extracomment>
        <translation>、</translation>
    </message>
    <message id="kiv-charging-round">
        <source>Round %1 of %2</source>
        <extracomment>How many times something has been tried, of how many</extracomment>
        <translation>第 %1 轮，共 %2 轮</translation>
    </message>
</context>
</TS>

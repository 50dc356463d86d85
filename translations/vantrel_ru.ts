<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>Официальный сайт</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>Открыть официальный сайт Vantrel</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>Смотреть видео о Vantrel на YouTube</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>Новый стиль</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Поиск обновлений…</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>Запрос к %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Установлена последняя версия!</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 — самая новая версия.</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>Доступна новая версия Vantrel!</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>Доступна версия Vantrel %1; у вас %2.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>Vantrel не удалось проверить обновления.</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Интервал</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>Толщина рамки</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Радиус тени</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>Радиус свечения</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>Модерн</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Классика</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Минимализм</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Гейминг</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Неон</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>Проявление</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>Увеличение</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>Выезд</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>Отскок</translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation>Готовые стили</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Основные</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Анимация</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>Как клавиши появляются на экране</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>Выберите шрифт</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Цвет текста</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>Цвет подписей клавиш</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Цвет фона</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>Цвет фона клавиш</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>Цвет рамки</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>Цвет рамки клавиш</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Эффекты</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Тень</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>Добавить тень к клавишам</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Цвет тени</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>Цвет тени</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>Свечение</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>Добавить свечение к клавишам</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>Цвет свечения</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>Цвет свечения</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>Сбросить вид к значениям по умолчанию</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>Шина специальных возможностей (AT-SPI) не запущена, поэтому поля паролей не распознаются.</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>Нет сеансовой шины, через которую можно найти шину специальных возможностей.</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>Ничего не показывается, пока фокус в поле пароля.</translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation>Вверху слева</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>Вверху по центру</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Вверху справа</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Внизу слева</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>Внизу по центру</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Внизу справа</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Своя</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>Подключённые экраны</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>Экраны не найдены</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>Обновить список подключённых экранов</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>Сбросить настройки экранов</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>Клавиши показываются на этом экране</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>Клавиши не показываются на этом экране</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Положение</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>Изменить своё положение</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>Vantrel не находит устройств ввода: папки %1 не существует.</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>Вы в группе input, но этот сеанс начался раньше: выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>Vantrel не может читать устройства ввода в %1 (доступ запрещён).</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>Vantrel не находит клавиатуру в %1.</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>Нажмите «Разрешить» и введите пароль администратора: помощник ввода Vantrel будет читать клавиатуру, пока Vantrel работает. Если окно пароля не появилось, запустите агент аутентификации рабочего стола и снова нажмите «Разрешить».</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>Или добавьте себя в группу input: sudo usermod -aG input $USER. Тогда любая запущенная вами программа сможет читать все нажатые клавиши.</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>Выйдите из системы и войдите снова, чтобы группа вступила в силу, затем нажмите «Проверить снова».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>Помощник ввода Vantrel дважды остановился; нажмите «Разрешить», чтобы запустить его снова.</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>%1s</source>
        <extracomment>A duration in seconds, the number already in the locale&apos;s form: &quot;1.5s&quot;, &quot;1,5s&quot;</extracomment>
        <translation>%1 с</translation>
    </message>
    <message numerus="yes">
        <source>%Ln keys</source>
        <translation>
            <numerusform>%Ln клавиша</numerusform>
            <numerusform>%Ln клавиши</numerusform>
            <numerusform>%Ln клавиш</numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Приложение</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>Включить Vantrel</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>Показывать нажатые клавиши на экране</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Запускать при входе</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>Автоматически запускать Vantrel при входе в систему</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>Значок в панели</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>Выберите значок для панели</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>Сведения о доступе к клавиатуре</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>Доступ к клавиатуре</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>Нужен, чтобы показывать нажатия</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Отображение</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>Время показа</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>Макс. число клавиш</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>Сбросить настройки отображения</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>Типы клавиш</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>Все клавиши</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>Показывать каждое нажатие</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>Клавиши-модификаторы</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>Функциональные клавиши</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1, F2, F3 и т. д.</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>Специальные клавиши</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Enter, Tab, Delete и Esc</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>Сбросить настройки типов клавиш</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>Щелчки мыши</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>Показывать щелчки</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>Показывать левые и правые щелчки</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>Сбросить всё</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>Сбросить все настройки к значениям по умолчанию</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>Это действие нельзя отменить</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>Сбросить все настройки?</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Вы действительно хотите сбросить все настройки к значениям по умолчанию?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation>Вкл./выкл. Vantrel</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>Увеличить клавиши</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Уменьшить клавиши</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Настроить положение</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Вкл./выкл. щелчки мыши</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>Окно пароля закрыто; Vantrel не может читать клавиатуру.</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>Агент аутентификации не отвечает; запустите агент рабочего стола и нажмите «Проверить снова».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>Помощник ввода Vantrel остановился.</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Доступ к клавиатуре</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>Разрешите доступ к клавиатуре</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Проверить снова</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Разрешить</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Конфиденциальность</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>Не защищено: у пароля, введённого в терминале (sudo, ssh), нет поля, которое можно распознать, поэтому он показывается, как любой другой ввод.</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1: работает.</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1: не работает.</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>Клавиши нигде не скрываются: ни одна защита не работает.</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>Глобальные сочетания</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>В этой среде сочетания для команд Vantrel задаются в настройках клавиатуры</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>Очистить сочетание</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>Используйте Ctrl, Alt или Super либо функциональную клавишу</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 уже занято другой программой</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 уже назначено другому сочетанию</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 недоступно на этой клавиатуре</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>Нажмите сочетание</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Записать</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>Нет системной шины, чтобы обратиться к менеджеру входа (logind).</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>Менеджер входа (logind) не отвечает.</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>Менеджер входа (logind) не знает вашего сеанса.</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>Ничего не показывается, пока менеджер входа сообщает, что этот сеанс заблокирован.</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>Щелчок левой кнопкой</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>Щелчок правой кнопкой</translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation>Предоставлен</translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation>Не предоставлен</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY должна быть «x11» или «wayland», а не «%1»</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>не отвечает ни один композитор Wayland с layer shell (он нужен для VANTREL_OVERLAY=wayland)</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>негде показывать оверлеи: композитор Wayland не предлагает layer shell, а DISPLAY не задана (нет XWayland)</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>нет дисплея X11: переменная DISPLAY не задана (Vantrel нужен рабочий стол X11)</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>не удаётся открыть дисплей X11 «%1»</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>Перетащите на место</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>Перетащите клавиши в нужное место. Щёлкните в любом месте, чтобы сохранить, или нажмите Esc для отмены.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>Перетащите на место</translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Сохранить стиль</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>Название стиля</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>Нет сеансовой шины, чтобы следить за блокировкой экрана.</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>Ничего не показывается, пока активна блокировка экрана.</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>Заблокированный сеанс</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>Блокировка экрана</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>Хранитель экрана X11</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>Поля паролей</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Настройки Vantrel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>Настройки вида пока недоступны.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Экраны</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>Настройки сочетаний пока недоступны.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Сочетания</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>Увеличить клавиши</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Уменьшить клавиши</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Настроить положение</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Вкл./выкл. щелчки мыши</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>Вопросы и ответы</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Поддержка</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>Соцсети</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Сайт</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>Предложить идею</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие приложения</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>Выйти из Vantrel</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>Остановить Vantrel</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>Запустить Vantrel</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>Сервер обновлений вернул ошибку HTTP %1%2.</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>Сервер обновлений не ответил за %1 с.</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>Не удалось связаться с сервером обновлений (%1). Проверьте подключение и повторите попытку.</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>Проверка обновлений не удалась: %1.</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>В ленте обновлений нет версий.</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>Лента обновлений не является лентой RSS.</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>Версия %1 (сборка %2)</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>Включить или выключить показ клавиш.</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>Увеличить клавиши.</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>Уменьшить клавиши.</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>Перетащить ряд клавиш в своё место.</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>Показать или скрыть щелчки мыши.</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>Открыть окно настроек.</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>Выйти из Vantrel.</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>Использование: vantrel [параметр]

Показывает нажатые клавиши в прозрачном оверлее на каждом включённом экране —
для презентаций, обучения, трансляций и скринкастов. Работает в системном лотке;
повторный запуск открывает настройки уже запущенного Vantrel.

Параметры:
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Показать эту справку и выйти.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Показать версию и выйти.</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>Управление запущенным Vantrel (назначьте на сочетания в настройках среды):</translation>
    </message>
    <message>
        <source>Sessions:
  X11      keys from the X server; overlays are X11 windows.
  Wayland  keys from the input devices (/dev/input, or the folder named by
           VANTREL_INPUT_DIR), named by the compositor&apos;s keymap; overlays are
           layer surfaces where the compositor offers the layer shell, X11
           windows through XWayland otherwise. VANTREL_OVERLAY=wayland or
           VANTREL_OVERLAY=x11 chooses one of the two. Reading the devices needs
           the input group, or &quot;Allow&quot; in the settings (an administrator&apos;s
           password starts vantrel-input-helper through pkexec).
</source>
        <translation>Сеансы:
  X11      клавиши от X-сервера; оверлеи — окна X11.
  Wayland  клавиши от устройств ввода (/dev/input или папка из
           VANTREL_INPUT_DIR), названные по раскладке композитора; оверлеи —
           поверхности layer shell, если композитор её предлагает, иначе окна
           X11 через XWayland. VANTREL_OVERLAY=wayland или VANTREL_OVERLAY=x11
           выбирает один из вариантов. Для чтения устройств нужна группа input
           или «Разрешить» в настройках (пароль администратора запускает
           vantrel-input-helper через pkexec).
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Настройки: %1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>Vantrel не запущен</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>только один параметр за раз, не «%1» (см. vantrel --help)</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>неизвестный параметр «%1» (см. vantrel --help)</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>Vantrel уже запущен; открывается окно настроек.</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>другой Vantrel занимает сеанс, но не отвечает</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>нет сеансовой шины D-Bus; Vantrel работает сам по себе, без удалённого управления и проверки второго экземпляра</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>не удаётся читать клавиатуру: %1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>Vantrel выключен («Показывать нажатые клавиши на экране» выключено).</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>сочетание %1 для «%2» уже занято другой программой; оно не сработает, пока та его не освободит</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>системный лоток не найден; вместо меню открывается окно настроек</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>Vantrel показывает нажатые клавиши на экране.</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>Vantrel больше не показывает нажатые клавиши.</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>Конфиденциальность: ничего не показывается — ни клавиши, ни модификаторы, ни
щелчки, — пока сеанс заблокирован (logind, сигналы блокировки экрана,
хранитель экрана X11) или пока фокус в поле пароля (отслеживается по шине
специальных возможностей, AT-SPI2). Какие защиты работают, видно в
Настройки &gt; Общие &gt; Доступ к клавиатуре.
Не защищено: у пароля в терминале (sudo, ssh) нет поля, которое можно
распознать; сначала выключите Vantrel (vantrel --toggle).
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>У X-сервера нет расширения XInput; Vantrel нужен XInput 2.2.</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>X-сервер не ответил на запрос версии XInput.</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>X-сервер предлагает XInput %1.%2; Vantrel нужен XInput 2.2 или новее.</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>Дисплей X не задан (DISPLAY пуста); Vantrel нужен рабочий стол X11.</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>Vantrel не может открыть дисплей X «%1».</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>Войдите в сеанс X11 (Xorg), а не Wayland.</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>Убедитесь, что X-сервер предлагает XInput 2.2 (любой современный Xorg это делает).</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>У X-сервера нет расширения хранителя экрана (MIT-SCREEN-SAVER).</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>Ничего не показывается, пока включён хранитель экрана X11 или блокировка.</translation>
    </message>
</context>
</TS>

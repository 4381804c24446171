<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Вас приветствует мастер установки [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Запустить [ProductName] сейчас</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Все файлы синхронизированы.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Обработка...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Мастер установки готов начать установку.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Режим подключения</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Локальная база данных повреждена. Отключитесь от сервера и подключитесь снова, чтобы создать базу данных заново. Подробности см. в ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Закрыть приложения и запустить их снова после внесения изменений</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Эта папка является точкой монтирования. Выберите папку, которая не является точкой монтирования.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Всё готово к удалению [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Сервер был заменён. Щёлкните здесь, чтобы подключиться снова.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Сейчас синхронизируется файлов: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки позволяет изменить, восстановить или удалить [ProductName]. Нажмите кнопку «Далее», чтобы продолжить, или кнопку «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Список исключений</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Удалить эту ссылку общего доступа?\nТе, у кого есть ссылка, больше не смогут открыть файл.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Версия Quillmere на этом компьютере слишком старая для работы с сервером.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Программа установки [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Ошибка входа</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Сертификат сервера не является доверенным: возможно, он просрочен, принадлежит другому серверу или выдан неизвестным издателем. Отправляемые данные могут прочитать посторонние. Продолжить?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>О программе Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Проверьте настройки ниже и нажмите кнопку «Готово».</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Печать</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Мастер установки готов начать удаление.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Этот компьютер уже подключён к этому серверу. Измените существующее подключение или укажите другой сервер.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>История скачиваний</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Соединение с сервером потеряно. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Не удалось проверить сертификат сервера.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Использовать чёрно-белый значок в области уведомлений</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Файлы в этой папке будут синхронизироваться с сервером.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Прокси-сервер требует проверки подлинности</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задания синхронизации</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Исключённые файлы</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Нет прав доступа</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Версия Quillmere на сервере слишком старая для работы с этим компьютером. Попросите администратора сервера обновить Quillmere.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Программу установки можно запустить снова в любое время. Нажмите кнопку «Завершить», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Соединение с сервером нестабильно.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Уже установлена более новая версия Quillmere. Чтобы установить эту версию, сначала удалите более новую.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Восстановить», чтобы восстановить [ProductName]. Нажмите кнопку «Назад», чтобы проверить выбранные параметры, или кнопку «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Некоторые настройки не сохранены. Сохранить их?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Значки состояния на файлах</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Эта папка уже используется другой программой синхронизации. Чтобы избежать конфликтов, выберите другую папку.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Несовместимая версия</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Смена папки синхронизации</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Введите имя файла целиком, без пути к папке, например thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Работа программы установки прервана из-за ошибки. Внесённые изменения отменены.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки установит [ProductName] на этот компьютер. Нажмите кнопку «Далее», чтобы продолжить, или кнопку «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Проблема синхронизации</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Внимательно прочитайте следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Использовать шифрованное соединение (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Некоторые файлы, которые требуется обновить, сейчас используются.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только для чтения</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Доступна новая версия Quillmere. Щёлкните здесь, чтобы обновить программу.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Скачивание файла «%1» отменено.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Введено недопустимое значение. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>У этого файла ещё нет предыдущих версий. Чтобы создать версию, измените файл и дождитесь его синхронизации.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключиться</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Инициализация Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Приостановить синхронизацию</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Режим объединения</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Программа Quillmere готова к работе.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Не удалось скачать эту версию. Проверьте соединение с сервером и повторите попытку.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Файлы, исключённые из синхронизации</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Дата создания</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Служба Quillmere выключена на сервере. Попросите администратора сервера включить её.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Выберите общие папки для синхронизации</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Удалить</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Отправка...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Чтобы использовать выборочную синхронизацию, попросите администратора сервера обновить Quillmere на сервере.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Настройки не были изменены.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Файлы используются</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Исправляет ошибки установки [ProductName], восстанавливая отсутствующие или повреждённые файлы и ярлыки.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Исключённые расширения файлов</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Синхронизация приостановлена.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Вас снова приветствует мастер установки [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Диск с папкой синхронизации не смонтирован. Смонтируйте диск и возобновите синхронизацию. Папка указана на странице «Задания синхронизации».</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Диск с папкой синхронизации заполнен.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Адрес прокси-сервера</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>П&amp;ропустить</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>На этом компьютере уже есть папка с таким именем. Объединить её файлы с файлами на сервере?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere синхронизирует ваши файлы между компьютерами и сервером.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Изменить набор установленных компонентов</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Добро пожаловать в Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Обновление Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Введите доменное имя, IP-адрес или ID сервера.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Не удалось создать ссылку общего доступа для этого файла. Проверьте соединение с сервером и повторите попытку.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Синхронизируется файлов: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Подключиться снова</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Ваши файлы синхронизированы, где бы вы ни были</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Место назначения</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Мастер установки вносит выбранные изменения.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Папки и файлы, с которых сняты флажки, будут удалены с этого компьютера. На сервере они сохранятся.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Все выбранные изменения внесены. Нажмите кнопку «Завершить», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Удалить», чтобы удалить [ProductName] с этого компьютера. Нажмите кнопку «Назад», чтобы проверить выбранные параметры, или кнопку «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Нет свободного места</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Вы заняли всё выделенное вам место на сервере.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Отключиться от сервера?\nФайлы останутся на этом компьютере и на сервере, но больше не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>В работе службы ретрансляции возникла проблема. Повторите попытку позже или подключитесь к серверу по его IP-адресу.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID сервера</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Исключённые имена файлов</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Диск с папкой синхронизации заполнен. Чтобы продолжить синхронизацию, освободите на нём место.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Папки для синхронизации</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Выберите папку синхронизации</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Настройки подключения</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Вы заняли всё выделенное вам место на сервере. Удалите ненужные файлы или попросите администратора сервера выделить больше места.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>После запуска значок программы [ProductName] появится в области уведомлений.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Оставить приложения открытыми и перезагрузить компьютер позже</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Использовать следующий прокси-сервер</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Этот файл был изменён на этом компьютере и на сервере. Обе копии находятся в одной папке под разными именами. Сравните их и оставьте нужную.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Все ваши файлы на каждом компьютере и на вашем собственном сервере</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Следующие приложения используют файлы, которые должна обновить программа установки. Закройте эти приложения и нажмите кнопку «Повторить». Чтобы продолжить, не закрывая их, нажмите кнопку «Пропустить». Чтобы выйти из программы установки, нажмите кнопку «Выход».</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Сервер недоступен. Проверьте подключение к сети и адрес сервера, затем повторите попытку.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Локальная папка синхронизации</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Файлы, соответствующие записям в этом списке, не синхронизируются.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Изменить подключение...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Следующие приложения используют файлы, которые должна обновить программа установки. Выберите, следует ли ей закрыть эти приложения. Если оставить их открытыми, для завершения работы программы установки потребуется перезагрузить компьютер.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Мастер установки готов начать восстановление.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Открыть Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Перезапустите программу %1, чтобы применить новые настройки языка.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Показывать значки состояния на исключённых файлах</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Достигнуто предельное число синхронизируемых общих папок: %1. Чтобы добавить другую, сначала прекратите синхронизацию какой-либо общей папки.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Удалить это задание синхронизации?\nЕго файлы останутся на этом компьютере и на сервере, но больше не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Запуск Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Не удалось обновить Quillmere. Прежняя версия сохранена. Перезагрузите компьютер и повторите попытку. Подробности см. в ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Исключать имена, начинающиеся с точки</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>На сервере нет свободного места на диске. Попросите администратора сервера освободить место.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Лицензионное соглашение</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Файл «%1» скачан.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Не удалось получить список версий этого файла. Проверьте соединение с сервером и повторите попытку.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Подключение к серверу установлено.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Работа программы установки [ProductName] завершена</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Не использовать прокси-сервер</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Общая папка не найдена</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Не удалось скачать файл «%1». Проверьте соединение с сервером и повторите попытку.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Отслеживание изменений файлов...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Настройки Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Не удалось удалить ссылку общего доступа. Проверьте соединение с сервером и повторите попытку.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Не удалось проверить сертификат сервера: возможно, он просрочен, принадлежит другому серверу или выдан неизвестным издателем. Попросите администратора сервера проверить сертификат.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Это не тот сервер, к которому был подключён этот компьютер. Проверьте адрес сервера или подключитесь снова.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>В [ProductName] нет компонентов, которые можно изменить по отдельности.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Не указан адрес или порт прокси-сервера. Введите оба значения и повторите попытку.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Не указано имя пользователя. Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Удалить ссылку</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>&amp;Я принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Обновлено: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Управление подключениями</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Подключиться к другому серверу...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Показывать значки состояния на файлах</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Внесение изменений в [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Служба выключена</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Прекратить синхронизацию этой общей папки?\nФайлы, которые уже есть на этом компьютере, сохранятся.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Исключаемые файлы</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Подробности о состоянии</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Я н&amp;е принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Произошла ошибка. Повторите попытку, а если проблема не исчезнет, обратитесь к администратору сервера. Подробности см. в ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Значки в области уведомлений</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Папка доступна только для чтения. Выберите папку, доступную для записи.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Настройки прокси-сервера</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Вы вошли в систему не как администратор, поэтому программа Quillmere может установиться не полностью. Продолжить?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>С помощью значка в области уведомлений можно в любое время узнать состояние синхронизации или изменить настройки.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Ссылка общего доступа создана</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Неправильное имя пользователя или пароль. Проверьте их и повторите попытку.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Всё готово к восстановлению [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Стала доступна общая папка «%1». Щёлкните здесь, чтобы синхронизировать её.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Сведения о подключении</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Позволяет выбрать, какие компоненты будут установлены.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Папка является точкой монтирования</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Выбрать другую папку...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Восстановить</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Максимальный размер файла</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Введите адрес сервера и данные своей учётной записи на сервере.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>По адресу сервера обнаружен другой сервер.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Подключение к серверу...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Создать ссылку общего доступа</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Сервер не принял имя пользователя или пароль. Измените подключение: введите имя и пароль ещё раз.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Недавно обновлённые файлы</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Использовать системные настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Сменить папку...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Файл заблокирован</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Синхронизация файлов...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Всё готово к установке [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Проверка имени пользователя и пароля...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Подождите, пока мастер установки внесёт изменения в [ProductName]. Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>Недопустимый ID сервера. Проверьте ID сервера и повторите попытку.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Открыть папку синхронизации</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>При двойном щелчке по значку в области уведомлений</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Не удалось включить синхронизацию этой общей папки. Проверьте свои права доступа на сервере и повторите попытку.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Общий доступ к файлам через службу ретрансляции выключен на сервере. Попросите администратора сервера включить его.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Возобновить синхронизацию</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Ссылка общего доступа скопирована в буфер обмена.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Локальная папка синхронизации не найдена. Восстановите папку или выберите другую. Путь к папке указан на странице «Задания синхронизации».</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Обновление Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Добавить задание...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Общая папка не смонтирована на сервере. Попросите администратора сервера смонтировать её. Имя папки указано на странице «Общие папки».</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Получен неожиданный ответ сервера. Обновите Quillmere на этом компьютере и попросите администратора сервера обновить Quillmere на сервере. Подробности см. в ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Сведения о сервере</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Синхронизация остановлена из-за проблемы. Щёлкните здесь, чтобы узнать подробности.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Укажите размер не более %1&#xa0;МБ.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Проверка файлов...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Попытка синхронизации...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Установить», чтобы начать установку [ProductName]. Нажмите кнопку «Назад», чтобы проверить выбранные параметры, или кнопку «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Работа программы установки [ProductName] прервана</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Папка не пуста. Объедините её файлы с файлами на сервере или выберите другую папку.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Эта папка индексируется. Файлы появятся в ней после завершения индексации.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Вы можете открывать файлы в этой общей папке, но внесённые вами изменения не отправляются на сервер.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Настройки сети</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Эта папка уже синхронизируется с другой общей папкой. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>На сервере нет свободного места на диске.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Ретрансляция по ID сервера</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Выберите нужное действие.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Работа программы установки [ProductName] завершилась с ошибкой</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Программа Quillmere уже запущена.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Запускать Quillmere при входе в систему на этом компьютере</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Сохраняются все файлы из обеих папок. Если две версии файла различаются, сохраняются обе под разными именами.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Восстановить установленную программу</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Синхронизация включена</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Не удалось запустить Quillmere. Перезагрузите компьютер и запустите Quillmere снова. Подробности см. в ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Прервать работу программы установки [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Всё равно продолжить</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Изменение, восстановление или удаление [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Настройка Quillmere завершена</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Просмотреть версии...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Изменить</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Этот компьютер отключён от сервера. Чтобы продолжить синхронизацию, подключитесь снова.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Определение...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Предупреждение о сертификате</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Служба ретрансляции недоступна. Проверьте подключение к интернету и повторите попытку.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Удаляет [ProductName] с этого компьютера.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Скачивание файла «%1»...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Завершить</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Папка только для чтения</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Вы прервали работу программы установки. На компьютере ничего не изменено.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Недопустимый номер порта. Введите число от 1 до 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere не может отслеживать изменения на сетевом диске. Выберите папку на локальном диске.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Удалить установленную программу</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Диск на сервере, содержащий эту папку, не смонтирован. Попросите администратора сервера смонтировать этот диск. Папка указана на странице «Задания синхронизации».</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Эта версия Quillmere уже установлена. Установить её ещё раз?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Версия Quillmere на этом компьютере слишком старая для работы с сервером. Обновите программу и повторите попытку.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Версия Quillmere на сервере слишком старая для работы с этим компьютером.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Выключено</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}歡迎使用 [ProductName] 安裝精靈</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>立即啟動 [ProductName]</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>所有檔案都已是最新狀態。</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>正在處理…</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>離開</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>安裝精靈已準備好開始安裝。</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>連線模式</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>本機資料庫已損毀。請與伺服器斷線，然後重新連線以重建資料庫。詳細資料請見「~/.Quillmere/log」。</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>關閉應用程式，並在作業完成後重新啟動(&amp;C)</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>此資料夾是掛載點。請選擇不是掛載點的資料夾。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]已準備好移除 [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>伺服器已更換。按一下這裡重新連線。</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>正在同步 %1 個檔案。</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈可讓您變更、修復或移除 [ProductName]。按一下「下一步」繼續，或按一下「取消」離開安裝精靈。</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>排除清單</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>要刪除此分享連結嗎？\n擁有此連結的人將無法再開啟該檔案。</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>這台電腦上的 Quillmere 版本過舊，無法與伺服器搭配使用。</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安裝程式</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登入失敗</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>伺服器的憑證不受信任：憑證可能已過期、屬於其他伺服器，或是由不明的簽發者簽發。其他人可能會讀取您傳送的資料。要繼續嗎？</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>關於 Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>請檢查以下設定，然後按一下「完成」。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>安裝精靈已準備好開始移除。</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>這台電腦已連線到此伺服器。請編輯現有連線，或輸入其他伺服器。</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下載紀錄</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>與伺服器的連線已中斷。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>無法驗證伺服器的憑證。</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白系統匣圖示</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>此資料夾中的檔案將與伺服器同步。</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>代理伺服器需要身分驗證</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>排除的檔案</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>沒有權限</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>伺服器上的 Quillmere 版本過舊，無法與這台電腦搭配使用。請聯絡伺服器管理員升級伺服器上的 Quillmere。</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>您可以隨時再次執行安裝程式。按一下「完成」離開安裝精靈。</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>與伺服器的連線不穩定。</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>已安裝較新版本的 Quillmere。若要安裝此版本，請先移除較新的版本。</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>按一下「修復」來修復 [ProductName] 的安裝。按一下「返回」檢視您的選擇，或按一下「取消」離開安裝精靈。</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>部分設定尚未儲存。要儲存嗎？</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>檔案上的覆疊圖示</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>此資料夾已被其他同步程式使用。請選擇其他資料夾以避免衝突。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>版本不相容</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>變更同步資料夾</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>請輸入不含資料夾路徑的完整檔案名稱，例如 thumbs.db。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]安裝程式因發生錯誤而停止。安裝程式所做的變更已復原。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈將在您的電腦上安裝 [ProductName]。按一下「下一步」繼續，或按一下「取消」離開安裝精靈。</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步發生問題</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>請仔細閱讀以下授權合約。</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>使用加密連線（TLS）</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>部分需要更新的檔案正在使用中。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Quillmere 有新版本可用。按一下這裡升級。</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>已取消下載「%1」。</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>您輸入的值無效。請檢查後再試一次。</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>此檔案尚無先前版本。修改檔案並完成同步後，就會產生先前版本。</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>斷線</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmere 正在初始化…</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暫停同步</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合併模式</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere 已就緒。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>無法下載此版本。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在套用設定…</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>排除在同步之外的檔案</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>伺服器上的 Quillmere 服務已關閉。請聯絡伺服器管理員開啟此服務。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>選擇要同步的共用資料夾</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]移除(&amp;M)</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上傳…</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>若要使用選擇性同步，請聯絡伺服器管理員升級伺服器上的 Quillmere。</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>沒有變更任何設定。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]檔案使用中</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>還原遺失或損毀的檔案和捷徑，以修復 [ProductName] 安裝中的錯誤。</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>排除的副檔名</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>同步已暫停。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}歡迎再次使用 [ProductName] 安裝精靈</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>同步資料夾所在的磁碟機未掛載。請掛載該磁碟機，然後繼續同步。您可以在「同步工作」中查看該資料夾。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>同步資料夾所在的磁碟機已滿。</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>代理伺服器位址</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重試(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>這台電腦上已有同名的資料夾。要將其中的檔案與伺服器上的檔案合併嗎？</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere 可讓您的檔案在各台電腦與伺服器之間保持同步。</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>變更已安裝的功能</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>歡迎使用 Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>正在升級 Quillmere…</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>請輸入網域名稱、IP 位址或伺服器 ID。</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>無法為此檔案建立分享連結。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>正在同步的檔案數：%1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新連線</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>您的檔案，隨處同步</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>安裝精靈正在進行您選擇的變更。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>您取消勾選的資料夾和檔案將從這台電腦移除，但會保留在伺服器上。</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>安裝程式已完成您選擇的所有變更。按一下「完成」離開安裝精靈。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>按一下「移除」，從您的電腦移除 [ProductName]。按一下「返回」檢視您的選擇，或按一下「取消」離開安裝精靈。</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>空間不足</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>已斷線</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>您在伺服器上的空間已全部用完。</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>要與伺服器斷線嗎？\n您的檔案會保留在這台電腦和伺服器上，但不會再同步。</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>中繼服務發生問題。請稍後再試，或改用 IP 位址連線到伺服器。</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>伺服器 ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>排除的檔案名稱</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>伺服器位址</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>同步資料夾所在的磁碟機已滿。請釋出該磁碟機上的一些空間以繼續同步。</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>要同步的資料夾</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>選擇同步資料夾</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>連線設定</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>電腦</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>您在伺服器上的空間已全部用完。請刪除不需要的檔案，或請伺服器管理員增加空間。</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>啟動 [ProductName] 後，其圖示會顯示在系統匣中。</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>讓應用程式保持開啟，稍後再重新開機(&amp;L)</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>使用下列代理伺服器</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>此檔案在這台電腦和伺服器上都經過修改。兩份複本以不同的名稱存放在同一個資料夾中。請比較兩份複本，然後保留您需要的那一份。</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>所有檔案存放在自己的伺服器上，每台電腦隨時可用</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>下列應用程式正在使用安裝程式需要更新的檔案。請關閉這些應用程式，然後按一下「重試」。若要在不關閉的情況下繼續，請按一下「忽略」。若要離開安裝程式，請按一下「離開」。</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>無法連線到伺服器。請檢查網路連線和伺服器位址，然後再試一次。</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>本機同步資料夾</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>符合此清單中任一項目的檔案不會同步。</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>編輯連線…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>下列應用程式正在使用安裝程式需要更新的檔案。請選擇是否由安裝程式關閉這些應用程式。若保持開啟，則必須重新開機才能完成作業。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>安裝精靈已準備好開始修復。</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>開啟 Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>請重新啟動 %1 以套用新的語言設定。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>在已排除的檔案上顯示覆疊圖示</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入…</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>同步的共用資料夾數量已達上限：%1。請先停止同步一個共用資料夾，再新增其他共用資料夾。</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>要移除此同步工作嗎？\n其檔案會保留在這台電腦和伺服器上，但不會再同步。</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>正在啟動 Quillmere…</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>無法升級 Quillmere。先前的版本已保留。請重新開機，然後再試一次。詳細資料請見「~/.Quillmere/log」。</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>排除以點開頭的名稱</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>伺服器已沒有可用的磁碟空間。請聯絡伺服器管理員釋出一些空間。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]授權合約</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>已下載「%1」。</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>無法列出此檔案的版本。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>已連線到伺服器。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝程式已完成作業</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共用資料夾</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>無法下載「%1」。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>正在監看檔案變更…</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmere 設定</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>無法刪除此分享連結。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>無法驗證伺服器的憑證：憑證可能已過期、屬於其他伺服器，或是由不明的簽發者簽發。請聯絡伺服器管理員檢查憑證。</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>這不是這台電腦先前連線的伺服器。請檢查伺服器位址，或重新連線。</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] 沒有可個別變更的功能。</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>尚未輸入代理伺服器的位址或連接埠。請輸入這兩項，然後再試一次。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>尚未輸入使用者名稱。請輸入使用者名稱。</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>刪除分享連結</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>我接受授權合約中的條款(&amp;A)</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>已更新：%1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>管理連線</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>連線到其他伺服器…</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>顯示覆疊圖示</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]正在對 [ProductName] 進行變更</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>服務已關閉</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>要停止同步此共用資料夾嗎？\n已在這台電腦上的檔案將會保留。</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>要排除的檔案</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>狀態詳細資料</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>我不接受授權合約中的條款(&amp;D)</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>發生錯誤。請再試一次；如果問題持續發生，請聯絡伺服器管理員。詳細資料請見「~/.Quillmere/log」。</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>系統匣圖示</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>此資料夾為唯讀。請選擇您可以寫入的資料夾。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>返回(&amp;B)</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理伺服器設定</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>您並非以系統管理員身分登入，Quillmere 可能無法完整安裝。要繼續嗎？</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>您可以隨時透過系統匣圖示查看同步狀態或變更設定。</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>已建立分享連結</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>使用者名稱或密碼不正確。請檢查這兩項，然後再試一次。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]已準備好修復 [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>共用資料夾「%1」現在可以使用了。按一下這裡進行同步。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>狀態：</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>連線資訊</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>讓您選擇要安裝哪些功能。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>資料夾是掛載點</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>選擇其他資料夾…</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]修復(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>檔案大小上限</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>請輸入伺服器位址，以及您在伺服器上使用的帳號。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>此伺服器位址上的是另一台伺服器。</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>正在連線到伺服器…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>建立分享連結</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>伺服器不接受此使用者名稱或密碼。請編輯連線，重新輸入使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新的檔案</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系統代理伺服器設定</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>變更資料夾…</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載…</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>檔案已鎖定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備…</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>正在同步檔案…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]已準備好安裝 [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>正在檢查使用者名稱和密碼…</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>安裝精靈正在對 [ProductName] 進行變更，請稍候。這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>伺服器 ID 無效。請檢查伺服器 ID，然後再試一次。</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>開啟同步資料夾</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>按兩下系統匣圖示時</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>無法為此共用資料夾開啟同步。請檢查您在伺服器上的權限，然後再試一次。</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>伺服器已關閉透過中繼服務進行的檔案分享。請聯絡伺服器管理員開啟此功能。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>繼續同步</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>離開(&amp;X)</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>分享連結已複製到剪貼簿。</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>找不到本機同步資料夾。請還原該資料夾，或選擇其他資料夾。您可以在「同步工作」中查看其路徑。</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>升級 Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>新增同步工作…</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>此共用資料夾未在伺服器上掛載。請聯絡伺服器管理員掛載該資料夾。您可以在「共用資料夾」中查看其名稱。</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>伺服器傳回非預期的回應。請升級這台電腦上的 Quillmere，並聯絡伺服器管理員升級伺服器上的 Quillmere。詳細資料請見「~/.Quillmere/log」。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>伺服器總覽</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>同步因發生問題而停止。按一下這裡查看詳細資料。</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>請輸入不超過 %1 MB 的大小。</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在檢查檔案…</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>正在嘗試同步…</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>按一下「安裝」開始安裝 [ProductName]。按一下「返回」檢視您的選擇，或按一下「取消」離開安裝精靈。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝程式的作業已取消</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>此資料夾不是空的。請將其中的檔案與伺服器上的檔案合併，或選擇其他資料夾。</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>正在為此資料夾建立索引。索引建立完成後，就會顯示其中的檔案。</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>您可以開啟此共用資料夾中的檔案，但您所做的變更不會上傳。</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>網路設定</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>此資料夾已與另一個共用資料夾同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>伺服器已沒有可用的磁碟空間。</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>透過伺服器 ID 中繼</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>請選擇您要執行的作業。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝程式未能完成作業</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere 已在執行中。</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>登入這台電腦時啟動 Quillmere</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>兩個資料夾中的所有檔案都會保留。如果同一個檔案的兩個版本不同，兩個版本都會以不同的名稱保留。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修復安裝</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>同步已開啟</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere 無法啟動。請重新開機，然後再次啟動 Quillmere。詳細資料請見「~/.Quillmere/log」。</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>要取消 [ProductName] 安裝程式的作業嗎？</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍要繼續</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]變更、修復或移除 [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere 已設定完成</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>瀏覽先前版本…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]變更(&amp;C)</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>這台電腦已與伺服器斷線。請重新連線以繼續同步。</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>正在偵測…</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>憑證警告</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>無法連線到中繼服務。請檢查網際網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>從您的電腦移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>正在下載「%1」…</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>唯讀資料夾</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]您已取消安裝程式的作業，電腦沒有任何變更。</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>連接埠號碼無效。請輸入 1 到 65535 之間的數字。</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere 無法監看網路磁碟機上的變更。請選擇本機磁碟機上的資料夾。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>移除此程式</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>伺服器上此資料夾所在的磁碟機未掛載。請聯絡伺服器管理員掛載該磁碟機。您可以在「同步工作」中查看該資料夾。</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>此版本的 Quillmere 已安裝。要重新安裝嗎？</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>這台電腦上的 Quillmere 版本過舊，無法與伺服器搭配使用。請升級 Quillmere，然後再試一次。</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>伺服器上的 Quillmere 版本過舊，無法與這台電腦搭配使用。</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>已關閉</translation>
    </message>
</context>
</TS>

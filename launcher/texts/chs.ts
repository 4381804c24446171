<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}欢迎使用 [ProductName] 安装向导</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>立即启动 [ProductName]</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>所有文件均已是最新状态。</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>正在处理…</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>安装向导已准备好开始安装。</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>连接模式</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>本地数据库已损坏。请断开与服务器的连接，然后重新连接以重建数据库。详情请见“~/.Quillmere/log”。</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>关闭应用程序，并在操作完成后将其重新启动(&amp;C)</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>此文件夹是挂载点。请选择一个非挂载点的文件夹。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]已准备好卸载 [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>服务器已更换。单击此处重新连接。</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>正在同步 %1 个文件。</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>安装向导可用于更改、修复或卸载 [ProductName]。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>排除列表</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>要删除此分享链接吗？\n拥有此链接的人将无法再打开该文件。</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>此计算机上的 Quillmere 版本过旧，无法与服务器配合使用。</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安装程序</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登录失败</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>服务器的证书不受信任：证书可能已过期、属于其他服务器，或由未知颁发者颁发。他人可能会读取您发送的数据。要继续吗？</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>关于 Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>请检查以下设置，然后单击“完成”。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>安装向导已准备好开始卸载。</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>此计算机已连接到此服务器。请编辑现有连接，或输入其他服务器。</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>与服务器的连接已中断。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>无法验证服务器的证书。</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白托盘图标</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>此文件夹中的文件将与服务器同步。</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>代理服务器需要身份验证</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>排除的文件</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>服务器上的 Quillmere 版本过旧，无法与此计算机配合使用。请联系服务器管理员升级服务器上的 Quillmere。</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>您可以随时再次运行安装程序。单击“完成”退出安装向导。</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>与服务器的连接不稳定。</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>已安装较新版本的 Quillmere。要安装此版本，请先卸载较新版本。</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>单击“修复”以修复 [ProductName] 的安装。单击“上一步”检查您的选择，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>部分设置尚未保存。要保存吗？</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>文件上的叠加图标</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>此文件夹已被其他同步程序使用。请选择其他文件夹以避免冲突。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>版本不兼容</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>更改同步文件夹</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>请输入不含文件夹路径的完整文件名，例如 thumbs.db。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]安装程序因出错而停止。安装程序所做的更改已撤销。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>安装向导将在您的计算机上安装 [ProductName]。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步异常</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>使用加密连接（TLS）</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>部分需要更新的文件正在使用中。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Quillmere 有新版本可用。单击此处升级。</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>已取消下载“%1”。</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>输入的值无效。请检查后重试。</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>此文件尚无历史版本。修改文件并等待同步完成后，即会生成历史版本。</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmere 正在初始化…</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暂停同步</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合并模式</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere 已就绪。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>无法下载此版本。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在应用设置…</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>排除在同步之外的文件</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>服务器上的 Quillmere 服务已关闭。请联系服务器管理员开启该服务。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>选择要同步的共享文件夹</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]卸载(&amp;U)</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上传…</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>要使用选择性同步，请联系服务器管理员升级服务器上的 Quillmere。</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>未更改任何设置。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]文件正在使用中</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>通过恢复缺失或损坏的文件和快捷方式，修复 [ProductName] 安装中的错误。</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>排除的文件扩展名</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>同步已暂停。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}欢迎再次使用 [ProductName] 安装向导</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>同步文件夹所在的驱动器未挂载。请挂载该驱动器，然后恢复同步。您可以在“同步任务”中查看该文件夹。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>同步文件夹所在的驱动器已满。</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>代理服务器地址</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>此计算机上已存在同名文件夹。要将其中的文件与服务器上的文件合并吗？</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere 可让文件在您的各台计算机与服务器之间保持同步。</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>更改已安装的功能</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>欢迎使用 Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修复(&amp;R)</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>正在升级 Quillmere…</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>请输入域名、IP 地址或服务器 ID。</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>无法为此文件创建分享链接。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>正在同步的文件数：%1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>您的文件，处处同步</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>安装向导正在执行您选择的更改。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>您取消勾选的文件夹和文件将从此计算机中移除，但会保留在服务器上。</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>安装程序已完成您选择的所有更改。单击“完成”退出安装向导。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>单击“卸载”以从您的计算机中卸载 [ProductName]。单击“上一步”检查您的选择，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>空间不足</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>已断开连接</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>您在服务器上的空间已全部用完。</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>要断开与服务器的连接吗？\n您的文件将保留在此计算机和服务器上，但不再同步。</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>中继服务出现问题。请稍后重试，或使用 IP 地址连接到服务器。</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>服务器 ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>排除的文件名</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>已开启</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>同步文件夹所在的驱动器已满。请释放该驱动器上的部分空间以继续同步。</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>要同步的文件夹</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>选择同步文件夹</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>连接设置</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>您在服务器上的空间已全部用完。请删除不需要的文件，或联系服务器管理员增加空间。</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>启动 [ProductName] 后，其图标会显示在系统托盘中。</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>让应用程序保持打开，稍后重新启动计算机(&amp;L)</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>使用以下代理服务器</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>此文件在此计算机和服务器上都被修改过。两个副本以不同的名称保存在同一文件夹中。请比较两个副本，然后保留需要的副本。</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>所有文件保存在自己的服务器上，每台计算机随时可用</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>以下应用程序正在使用安装程序需要更新的文件。请关闭这些应用程序，然后单击“重试”。要在不关闭的情况下继续，请单击“忽略”。要退出安装程序，请单击“退出”。</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>无法连接到服务器。请检查网络连接和服务器地址，然后重试。</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>本地同步文件夹</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>与此列表中任一条目匹配的文件不会同步。</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>编辑连接…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>以下应用程序正在使用安装程序需要更新的文件。请选择是否由安装程序关闭这些应用程序。如果不关闭，则需要重新启动计算机才能完成操作。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>安装向导已准备好开始修复。</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>打开 Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>请重新启动 %1 以应用新的语言设置。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>在已排除的文件上显示叠加图标</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>同步的共享文件夹数量已达上限：%1。请先停止同步一个共享文件夹，然后再添加其他共享文件夹。</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>要移除此同步任务吗？\n其文件将保留在此计算机和服务器上，但不再同步。</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>正在启动 Quillmere…</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>无法升级 Quillmere。先前的版本已保留。请重新启动计算机，然后重试。详情请见“~/.Quillmere/log”。</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>排除以点开头的名称</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>服务器没有可用磁盘空间。请联系服务器管理员释放部分空间。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]许可协议</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>已下载“%1”。</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>无法列出此文件的版本。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>已连接到服务器。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}[ProductName] 安装程序已完成操作</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>不使用代理服务器</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共享文件夹</translation>
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
        <translation>无法下载“%1”。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>正在监视文件更改…</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmere 设置</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>无法删除分享链接。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>无法验证服务器的证书：证书可能已过期、属于其他服务器，或由未知颁发者颁发。请联系服务器管理员检查证书。</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>此服务器不是此计算机之前连接的服务器。请检查服务器地址，或重新连接。</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] 没有可单独更改的功能。</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>未填写代理服务器的地址或端口。请填写这两项，然后重试。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>未填写用户名。请输入用户名。</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>删除分享链接</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>我接受许可协议中的条款(&amp;A)</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>已更新：%1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>管理连接</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>连接到其他服务器…</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>显示叠加图标</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]正在对 [ProductName] 进行更改</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>服务已关闭</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>要停止同步此共享文件夹吗？\n已在此计算机上的文件将会保留。</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>要排除的文件</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>状态详情</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>我不接受许可协议中的条款(&amp;D)</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>出现错误。请重试；如果问题仍然存在，请联系服务器管理员。详情请见“~/.Quillmere/log”。</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>托盘图标</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>此文件夹为只读。请选择一个您可以写入的文件夹。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>您未以管理员身份登录，Quillmere 可能无法完整安装。要继续吗？</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>您可以随时通过托盘图标查看同步状态或更改设置。</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>分享链接已创建</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>用户名或密码不正确。请检查这两项，然后重试。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]已准备好修复 [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>共享文件夹“%1”现已可用。单击此处进行同步。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>连接信息</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>让您选择要安装的功能。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>文件夹是挂载点</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>选择其他文件夹…</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]修复(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>卸载(&amp;U)</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>文件大小上限</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>请输入服务器地址和您在服务器上使用的账户。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>服务器地址指向了另一台服务器。</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>正在连接到服务器…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>创建分享链接</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>服务器未接受用户名或密码。请编辑连接，重新输入用户名和密码。</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新的文件</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>更改文件夹…</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载…</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>文件已锁定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备…</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>正在同步文件…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]已准备好安装 [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>正在验证用户名和密码…</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>安装向导正在对 [ProductName] 进行更改，请稍候。这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>服务器 ID 无效。请检查服务器 ID，然后重试。</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>打开同步文件夹</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>双击托盘图标时</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>无法为此共享文件夹开启同步。请检查您在服务器上的权限，然后重试。</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>服务器已关闭通过中继服务进行的文件共享。请联系服务器管理员开启此功能。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>恢复同步</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>分享链接已复制到剪贴板。</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>找不到本地同步文件夹。请恢复该文件夹，或选择其他文件夹。您可以在“同步任务”中查看其路径。</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>升级 Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>添加同步任务…</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>共享文件夹未在服务器上挂载。请联系服务器管理员挂载该文件夹。您可以在“共享文件夹”中查看其名称。</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>服务器返回了意外的响应。请升级此计算机上的 Quillmere，并联系服务器管理员升级服务器上的 Quillmere。详情请见“~/.Quillmere/log”。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>服务器概览</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>同步因出现问题而停止。单击此处查看详情。</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>请输入不超过 %1 MB 的大小。</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在检查文件…</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>正在尝试同步…</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>单击“安装”开始安装 [ProductName]。单击“上一步”检查您的选择，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}[ProductName] 安装程序的操作已取消</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>此文件夹不为空。请将其中的文件与服务器上的文件合并，或选择其他文件夹。</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>正在为此文件夹建立索引。索引完成后将显示其中的文件。</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>您可以打开此共享文件夹中的文件，但您所做的更改不会上传。</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>此文件夹已与另一个共享文件夹同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>服务器没有可用磁盘空间。</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>通过服务器 ID 中继</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>请选择要执行的操作。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}[ProductName] 安装程序未能完成操作</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere 已在运行。</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>登录此计算机时启动 Quillmere</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>两个文件夹中的所有文件都会保留。如果同一文件的两个版本不同，则两个版本都会以不同的名称保留。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修复安装</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>同步已开启</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere 无法启动。请重新启动计算机，然后再次启动 Quillmere。详情请见“~/.Quillmere/log”。</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>要取消 [ProductName] 安装程序的操作吗？</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]更改、修复或卸载 [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere 已设置完成</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>浏览历史版本…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]更改(&amp;C)</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>此计算机已断开与服务器的连接。请重新连接以继续同步。</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>正在检测…</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>证书警告</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>无法连接到中继服务。请检查互联网连接，然后重试。</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>从您的计算机中卸载 [ProductName]。</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>正在下载“%1”…</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>只读文件夹</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]您已取消安装程序的操作，计算机未发生任何更改。</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>端口号无效。请输入 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere 无法监视网络驱动器上的更改。请选择本地驱动器上的文件夹。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>卸载此程序</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>服务器上此文件夹所在的驱动器未挂载。请联系服务器管理员挂载该驱动器。您可以在“同步任务”中查看该文件夹。</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>此版本的 Quillmere 已安装。要重新安装吗？</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>此计算机上的 Quillmere 版本过旧，无法与服务器配合使用。请升级 Quillmere，然后重试。</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>服务器上的 Quillmere 版本过旧，无法与此计算机配合使用。</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>已关闭</translation>
    </message>
</context>
</TS>

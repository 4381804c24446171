<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Start [ProductName] now</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Shared folders</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>All files are up to date.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Processing...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>The Setup Wizard is ready to begin the installation.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Connection mode</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Close the applications and restart them after setup</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>The folder is a mount point. Choose a folder that is not a mount point.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Ready to remove [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>The server has been replaced. Click here to reconnect.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Currently syncing %1 files.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Exclusion list</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Delete this share link?\nPeople who have the link will no longer be able to open the file.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere on this computer is too old to work with the server.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Setup</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sign-in failed</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>About Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Check the settings below, then click Done.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>The Setup Wizard is ready to begin the removal.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>This computer is already connected to this server. Edit the existing connection, or enter another server.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download history</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>The connection to the server was lost. Check the network connection, then try again.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>The certificate of the server could not be verified.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Use a black-and-white tray icon</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>The files in this folder will be synced with the server.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>The proxy server requires sign-in</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Excluded files</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>No permission</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>You can run setup again at any time. Click Finish to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>The connection to the server is unstable.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Some settings have not been saved. Save them?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Icon overlays on files</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>This folder is already used by another sync program. Choose another folder to avoid conflicts.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Incompatible version</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Change sync folder</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Enter a complete file name without a folder path, for example thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Sync problem</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Read the following license agreement carefully.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Folder not empty</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Use an encrypted connection (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Some files that need to be updated are in use.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>A new version of Quillmere is available. Click here to upgrade.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>The download of %1 was canceled.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>The value you entered is not valid. Check it, then try again.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>This file has no earlier versions yet. Change the file and let it sync to create one.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmere is initializing...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pause syncing</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Merge mode</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere is ready.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>This version could not be downloaded. Check the connection to the server, then try again.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applying the settings...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Files excluded from syncing</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Choose shared folders to sync</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Re&amp;move</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>No settings have been changed.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Files in use</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Excluded file extensions</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Syncing is paused.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>The drive that holds the sync folder is full.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Proxy server address</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Retry</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignore</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>A folder with this name already exists on this computer. Merge its files with those on the server?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere keeps your files in sync between your computers and your server.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Change the installed features</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Welcome to Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Repair</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Upgrading Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Enter a domain name, an IP address, or a server ID.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>A share link could not be created for this file. Check the connection to the server, then try again.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Files being synced: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnect</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Your files, in sync everywhere</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>The Setup Wizard is making the changes you chose.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>The folders and files you deselected will be removed from this computer. They will be kept on the server.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>No space left</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnected</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>You have used all of your space on the server.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>The relay service has a problem. Try again later, or connect to the server by its IP address.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Excluded file names</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Server address</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Turned on</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>The drive that holds the sync folder is full. Free some space on it to continue syncing.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Folders to sync</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Choose sync folder</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Connection settings</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selective sync</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>After you start [ProductName], you can find it in the system tray.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Leave the applications open and restart the computer later</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Use the following proxy server</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>All your files on every computer, kept on your own server</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>The server cannot be reached. Check the network connection and the server address, then try again.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Local sync folder</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Files that match an entry in this list are not synced.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Edit connection...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>The Setup Wizard is ready to begin the repair.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Open Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Please restart %1 to apply the new language settings.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Show icon overlays on excluded files</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Starting Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Exclude names that begin with a dot</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>The server has no free disk space. Ask the server administrator to free some space.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]License agreement</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 was downloaded.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>The versions of this file could not be listed. Check the connection to the server, then try again.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Connected to the server.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}[ProductName] setup is complete</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Do not use a proxy server</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Shared folder not found</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>%1 could not be downloaded. Check the connection to the server, then try again.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Watching for file changes...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Shared folder</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmere settings</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>The share link could not be deleted. Check the connection to the server, then try again.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>This is not the server that this computer was connected to. Check the server address, or reconnect.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] has no features that can be changed separately.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>The address or port of the proxy server is missing. Enter both, then try again.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>The user name is missing. Enter a user name.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Delete link</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>I &amp;accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Updated: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Manage connections</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Connect to another server...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Show icon overlays</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Making changes to [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Service turned off</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Stop syncing this shared folder?\nThe files already on this computer will be kept.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Install</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Files to exclude</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Status details</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>I &amp;do not accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Tray icons</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>The folder is read-only. Choose a folder you can write to.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy settings</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Use the tray icon at any time to see the sync status or change the settings.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Share link created</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>The user name or password is not correct. Check both, then try again.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Ready to repair [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>The shared folder %1 is now available. Click here to sync it.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Connection information</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Lets you choose which features are installed.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Folder is a mount point</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Choose another folder...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Download only</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Repair</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximum file size</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Enter the server address and the account you use on the server.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Another server was found at the server address.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Connecting to the server...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Create share link</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>The user name or password was not accepted by the server. Edit the connection and enter them again.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Recently updated files</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Use the system proxy settings</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Change folder...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>File locked</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Syncing files...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Ready to install [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Checking the user name and password...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>The server ID is not valid. Check the server ID, then try again.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Open sync folder</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>When the tray icon is double-clicked</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Resume syncing</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>The share link was copied to the clipboard.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Upgrade Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Add sync task...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Server overview</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Syncing stopped because of a problem. Click here for details.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Enter a size of at most %1 MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Checking files...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Trying to sync...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}[ProductName] setup was canceled</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>The folder is not empty. Merge its files with those on the server, or choose another folder.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>This folder is being indexed. Its files will appear when indexing is complete.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>You can open the files in this shared folder, but changes you make are not uploaded.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>This folder is already synced with another shared folder. Choose another folder.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>The server has no free disk space.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relay by server ID</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Choose what you want to do.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}[ProductName] setup did not finish</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere is already running.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Start Quillmere when I sign in to this computer</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Repair the installation</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Syncing turned on</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Cancel [ProductName] setup?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continue anyway</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Change, repair, or remove [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere is set up</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Browse versions...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Change</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>This computer is disconnected from the server. Reconnect to continue syncing.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Detecting...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certificate warning</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>The relay service cannot be reached. Check the internet connection, then try again.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Removes [ProductName] from your computer.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Downloading %1...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finish</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Read-only folder</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]You canceled setup, and your computer was not changed.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>The port number is not valid. Enter a number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remove the installation</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>This version of Quillmere is already installed. Install it again?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere on the server is too old to work with this computer.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Turned off</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName]セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>今すぐ[ProductName]を起動する</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>すべてのファイルが最新の状態です。</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>処理中...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>セットアップウィザードによるインストールの準備ができました。</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>接続モード</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>ローカルデータベースが破損しています。サーバーから切断してから再接続し、データベースを再構築してください。詳細は「~/.Quillmere/log」に記録されています。</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>アプリケーションを閉じ、変更の完了後に再起動する(&amp;C)</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>このフォルダーはマウントポイントです。マウントポイントではないフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName]を削除する準備ができました</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>サーバーが交換されました。再接続するにはここをクリックしてください。</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>%1個のファイルを同期しています。</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>セットアップウィザードでは、[ProductName]の変更、修復、削除を行えます。続行するには「次へ」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>除外リスト</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>この共有リンクを削除しますか？\nリンクを知っている人はファイルを開けなくなります。</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>このコンピューターのQuillmereはバージョンが古く、サーバーと連携できません。</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName]セットアップ</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>サインイン失敗</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>サーバーの証明書は信頼されていません。有効期限が切れている、別のサーバーのものである、または発行元が不明である可能性があります。送信するデータを第三者に読み取られるおそれがあります。続行しますか？</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新しい共有フォルダー</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Quillmereについて</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>次の設定を確認し、「完了」をクリックしてください。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>セットアップウィザードによる削除の準備ができました。</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>このコンピューターはすでにこのサーバーに接続されています。既存の接続を編集するか、別のサーバーを入力してください。</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>サーバーとの接続が途切れました。ネットワーク接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>サーバーの証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>白黒のトレイアイコンを使用する</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>このフォルダー内のファイルがサーバーと同期されます。</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>プロキシサーバーで認証が必要</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>除外するファイル</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>アクセス権なし</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>サーバー上のQuillmereはバージョンが古く、このコンピューターと連携できません。サーバー管理者にQuillmereのアップグレードを依頼してください。</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>セットアップはいつでも再実行できます。「完了」をクリックすると、セットアップウィザードが終了します。</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>サーバーとの接続が不安定です。</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>より新しいバージョンのQuillmereがすでにインストールされています。このバージョンをインストールするには、先に新しい方のバージョンを削除してください。</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>「修復」をクリックすると、[ProductName]のインストールが修復されます。選択内容を確認するには「戻る」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>保存されていない設定があります。保存しますか？</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>ファイルのオーバーレイアイコン</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>このフォルダーは別の同期プログラムですでに使用されています。競合を避けるため、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>互換性のないバージョン</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>同期フォルダーの変更</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>フォルダーのパスを含まない完全なファイル名を入力してください（例：thumbs.db）。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]エラーのためセットアップが停止しました。セットアップによる変更は元に戻されました。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>セットアップウィザードで、コンピューターに[ProductName]をインストールします。続行するには「次へ」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同期の問題</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>次の使用許諾契約書をよくお読みください。</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>空ではないフォルダー</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>暗号化接続（TLS）を使用する</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>更新が必要なファイルの一部が使用中です。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>新しいバージョンのQuillmereを利用できます。アップグレードするにはここをクリックしてください。</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>「%1」のダウンロードをキャンセルしました。</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>入力した値が正しくありません。値を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>このファイルにはまだ以前のバージョンがありません。ファイルを変更して同期すると作成されます。</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmereを初期化しています...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>同期を一時停止</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>統合モード</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmereの準備ができました。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>このバージョンをダウンロードできませんでした。サーバーとの接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>同期から除外するファイル</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>サーバーでQuillmereサービスが無効になっています。サーバー管理者に有効化を依頼してください。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>同期する共有フォルダーの選択</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]削除(&amp;M)</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロード中...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>選択的同期を使用するには、サーバー上のQuillmereのアップグレードをサーバー管理者に依頼してください。</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>変更された設定はありません。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]使用中のファイル</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>不足または破損しているファイルやショートカットを復元して、[ProductName]のインストールのエラーを修復します。</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>除外するファイルの拡張子</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>同期は一時停止中です。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName]セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>同期フォルダーのあるドライブがマウントされていません。ドライブをマウントしてから、同期を再開してください。フォルダーは「同期タスク」で確認できます。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>同期フォルダーのあるドライブに空き容量がありません。</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>プロキシサーバーのアドレス</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>同じ名前のフォルダーがこのコンピューターにすでに存在します。フォルダー内のファイルをサーバー上のファイルと統合しますか？</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmereは、お使いのコンピューターとサーバーの間でファイルを常に同期します。</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>インストールされている機能の変更</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Quillmereへようこそ</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Quillmereをアップグレードしています...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>ドメイン名、IPアドレス、またはサーバーIDを入力してください。</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>このファイルの共有リンクを作成できませんでした。サーバーとの接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>同期中のファイル：%1個</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>大切なファイルを、どこでも同期</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>選択した変更をセットアップウィザードが実行しています。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>選択を解除したフォルダーとファイルは、このコンピューターから削除されます。サーバー上には残ります。</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>セットアップで、選択した変更をすべて実行しました。「完了」をクリックすると、セットアップウィザードが終了します。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>「削除」をクリックすると、コンピューターから[ProductName]が削除されます。選択内容を確認するには「戻る」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>空き容量なし</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>切断済み</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>サーバーで使用できる容量をすべて使い切りました。</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>サーバーから切断しますか？\nファイルはこのコンピューターとサーバーに残りますが、同期されなくなります。</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>中継サービスで問題が発生しています。後でもう一度試すか、IPアドレスを使ってサーバーに接続してください。</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>サーバーID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>除外するファイル名</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>サーバーアドレス</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>同期フォルダーのあるドライブに空き容量がありません。同期を続けるには、このドライブの空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>同期するフォルダー</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>同期フォルダーの選択</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>接続設定</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選択的同期</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>サーバーで使用できる容量をすべて使い切りました。不要なファイルを削除するか、容量の追加をサーバー管理者に依頼してください。</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>[ProductName]を起動すると、システムトレイに表示されます。</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>アプリケーションを開いたままにし、後でコンピューターを再起動する(&amp;L)</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>次のプロキシサーバーを使用する</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>このファイルは、このコンピューターとサーバーの両方で変更されました。両方のコピーが、同じフォルダーに異なる名前で保存されています。2つを比較し、必要な方を残してください。</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>自分のサーバーに保管したすべてのファイルを、どのコンピューターでも</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示する</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>次のアプリケーションは、セットアップで更新する必要のあるファイルを使用しています。アプリケーションを閉じてから「再試行」をクリックしてください。閉じずに続行するには「無視」をクリックしてください。セットアップを中止するには「終了」をクリックしてください。</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>サーバーに接続できません。ネットワーク接続とサーバーアドレスを確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>ローカル同期フォルダー</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>このリストの項目に一致するファイルは同期されません。</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>接続を編集...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>次のアプリケーションは、セットアップで更新する必要のあるファイルを使用しています。セットアップでこれらのアプリケーションを閉じるかどうかを選択してください。開いたままにする場合、変更を完了するにはコンピューターの再起動が必要です。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>セットアップウィザードによる修復の準備ができました。</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Quillmereを開く</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>新しい言語設定を適用するには、%1を再起動してください。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>除外されたファイルにオーバーレイアイコンを表示する</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>同期できる共有フォルダーの上限（%1個）に達しています。別の共有フォルダーを追加する前に、いずれかの共有フォルダーの同期を停止してください。</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>この同期タスクを削除しますか？\n対象のファイルはこのコンピューターとサーバーに残りますが、同期されなくなります。</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Quillmereを起動しています...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmereをアップグレードできませんでした。以前のバージョンはそのまま残っています。コンピューターを再起動してから、もう一度お試しください。詳細は「~/.Quillmere/log」に記録されています。</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>ドットで始まる名前を除外する</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>サーバーのディスクに空き容量がありません。サーバー管理者に空き容量の確保を依頼してください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]使用許諾契約書</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>「%1」をダウンロードしました。</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>このファイルのバージョン一覧を取得できませんでした。サーバーとの接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>サーバーに接続しました。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}[ProductName]セットアップが完了しました</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>プロキシサーバーを使用しない</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>見つからない共有フォルダー</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>「%1」をダウンロードできませんでした。サーバーとの接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>ファイルの変更を監視しています...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmereの設定</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>共有リンクを削除できませんでした。サーバーとの接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>サーバーの証明書を検証できませんでした。有効期限が切れている、別のサーバーのものである、または発行元が不明である可能性があります。サーバー管理者に証明書の確認を依頼してください。</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>このコンピューターが接続していたサーバーとは別のサーバーです。サーバーアドレスを確認するか、再接続してください。</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName]には個別に変更できる機能がありません。</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>プロキシサーバーのアドレスまたはポートが入力されていません。両方を入力してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>ユーザー名が入力されていません。ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>共有リンクを削除</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>使用許諾契約書の条項に同意する(&amp;A)</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>更新しました：%1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>接続を管理</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>別のサーバーに接続...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>オーバーレイアイコンを表示する</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont][ProductName]に変更を加えています</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>サービス無効</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>この共有フォルダーの同期を停止しますか？\nすでにこのコンピューターにあるファイルは残ります。</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>除外するファイル</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>状態の詳細</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>使用許諾契約書の条項に同意しない(&amp;D)</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>問題が発生しました。もう一度お試しください。問題が続く場合は、サーバー管理者にお問い合わせください。詳細は「~/.Quillmere/log」に記録されています。</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>トレイアイコン</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>このフォルダーは読み取り専用です。書き込み可能なフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>管理者としてサインインしていないため、Quillmereを完全にインストールできない可能性があります。続行しますか？</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>トレイアイコンから、同期の状態の確認や設定の変更をいつでも行えます。</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>共有リンクを作成しました</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>ユーザー名またはパスワードが正しくありません。両方を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName]を修復する準備ができました</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>共有フォルダー「%1」を利用できるようになりました。同期するにはここをクリックしてください。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態：</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>接続情報</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>インストールする機能を選択できます。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>マウントポイントのフォルダー</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>別のフォルダーを選択...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]修復(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大ファイルサイズ</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>サーバーアドレスと、サーバーで使用しているアカウントを入力してください。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>サーバーアドレスで別のサーバーが見つかりました。</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>サーバーに接続しています...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>共有リンクを作成</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>ユーザー名またはパスワードがサーバーに拒否されました。接続を編集し、ユーザー名とパスワードを入力し直してください。</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新されたファイル</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>システムのプロキシ設定を使用する</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>フォルダーを変更...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロード中...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>ロックされたファイル</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>ファイルを同期しています...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName]をインストールする準備ができました</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>ユーザー名とパスワードを確認しています...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>セットアップウィザードが[ProductName]に変更を加えています。しばらくお待ちください。数分かかることがあります。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>サーバーIDが正しくありません。サーバーIDを確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>同期フォルダーを開く</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>トレイアイコンをダブルクリックしたとき</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>この共有フォルダーの同期を有効にできませんでした。サーバー上のアクセス権を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>サーバーで中継経由のファイル共有が無効になっています。サーバー管理者に有効化を依頼してください。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>同期を再開</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>共有リンクをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>ローカル同期フォルダーが見つかりません。フォルダーを復元するか、別のフォルダーを選択してください。パスは「同期タスク」で確認できます。</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Quillmereのアップグレード</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>同期タスクを追加...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>共有フォルダーがサーバーでマウントされていません。サーバー管理者にマウントを依頼してください。名前は「共有フォルダー」で確認できます。</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>サーバーから予期しない応答がありました。このコンピューターのQuillmereをアップグレードし、サーバー上のQuillmereのアップグレードをサーバー管理者に依頼してください。詳細は「~/.Quillmere/log」に記録されています。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>サーバーの概要</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>問題が発生したため同期が停止しました。詳細を確認するにはここをクリックしてください。</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>%1 MB以下のサイズを入力してください。</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>ファイルを確認しています...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>同期を試みています...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>「インストール」をクリックすると、[ProductName]のインストールが開始されます。選択内容を確認するには「戻る」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}[ProductName]セットアップはキャンセルされました</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>このフォルダーは空ではありません。フォルダー内のファイルをサーバー上のファイルと統合するか、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>このフォルダーのインデックスを作成しています。完了するとファイルが表示されます。</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>この共有フォルダー内のファイルを開くことはできますが、変更はアップロードされません。</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>ネットワーク設定</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>このフォルダーはすでに別の共有フォルダーと同期されています。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>サーバーのディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>サーバーIDによる中継</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}[ProductName]セットアップを完了できませんでした</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmereはすでに実行中です。</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>このコンピューターへのサインイン時にQuillmereを起動する</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>両方のフォルダーのすべてのファイルが保持されます。同じファイルの内容が異なる場合は、両方のバージョンが異なる名前で保持されます。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>インストールの修復</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>同期有効</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmereを起動できませんでした。コンピューターを再起動してから、もう一度Quillmereを起動してください。詳細は「~/.Quillmere/log」に記録されています。</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>[ProductName]セットアップをキャンセルしますか？</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>このまま続行</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName]の変更、修復、削除</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmereの設定が完了しました</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>以前のバージョンを表示...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]変更(&amp;C)</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>このコンピューターはサーバーから切断されています。同期を続けるには再接続してください。</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>検出中...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>証明書の警告</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>中継サービスに接続できません。インターネット接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>コンピューターから[ProductName]を削除します。</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>「%1」をダウンロードしています...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>読み取り専用フォルダー</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]セットアップはキャンセルされ、コンピューターは変更されていません。</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>ポート番号が正しくありません。1～65535の数値を入力してください。</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmereではネットワークドライブ上の変更を監視できません。ローカルドライブ上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>プログラムの削除</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>このフォルダーを保存しているサーバー上のドライブがマウントされていません。サーバー管理者にマウントを依頼してください。フォルダーは「同期タスク」で確認できます。</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>このバージョンのQuillmereはすでにインストールされています。もう一度インストールしますか？</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>このコンピューターのQuillmereはバージョンが古く、サーバーと連携できません。Quillmereをアップグレードしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>サーバー上のQuillmereはバージョンが古く、このコンピューターと連携できません。</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>無効</translation>
    </message>
</context>
</TS>

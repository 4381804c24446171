<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] kurulum sihirbazına hoş geldiniz</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>[ProductName] uygulamasını şimdi başlat</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Paylaşılan klasörler</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tüm dosyalar güncel.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>İşleniyor...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Kurulum sihirbazı kuruluma başlamaya hazır.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Bağlantı modu</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Yerel veri tabanı zarar görmüş. Veri tabanını yeniden oluşturmak için sunucu bağlantısını kesin, ardından yeniden bağlanın. Ayrıntılar ~/.Quillmere/log içinde.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>Uygulamaları k&amp;apat ve kurulumdan sonra yeniden başlat</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Klasör bir bağlama noktası. Bağlama noktası olmayan bir klasör seçin.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] kaldırılmaya hazır</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Sunucu değiştirilmiş. Yeniden bağlanmak için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Şu anda %1 dosya eşitleniyor.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum sihirbazı [ProductName] uygulamasını değiştirmenizi, onarmanızı veya kaldırmanızı sağlar. Devam etmek için “Sonraki” düğmesine, kurulum sihirbazından çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Hariç tutma listesi</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Bu paylaşım bağlantısı silinsin mi?\nBağlantıya sahip olan kişiler artık dosyayı açamayacak.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Bu bilgisayardaki Quillmere, sunucuyla çalışmak için çok eski.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] kurulumu</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Oturum açılamadı</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı sınanıyor...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Sunucunun sertifikası güvenilir değil: süresi dolmuş, başka bir sunucuya ait veya bilinmeyen bir yayımcıdan gelmiş olabilir. Gönderdiğiniz verileri başkaları okuyabilir. Devam edilsin mi?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Quillmere Hakkında</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Aşağıdaki ayarları gözden geçirin, ardından “Bitti” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Ya&amp;zdır</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Kurulum sihirbazı kaldırma işlemine başlamaya hazır.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Bu bilgisayar bu sunucuya zaten bağlı. Var olan bağlantıyı düzenleyin veya başka bir sunucu girin.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>İndirme geçmişi</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Sunucu bağlantısı koptu. Ağ bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Sunucunun sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Siyah beyaz sistem tepsisi simgesi kullan</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Bu klasördeki dosyalar sunucuyla eşitlenecek.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Vekil sunucu oturum açmayı gerektiriyor</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Eşitleme görevleri</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Hariç tutulan dosyalar</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>İzin yok</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Sunucudaki Quillmere, bu bilgisayarla çalışmak için çok eski. Sunucu yöneticisinden Quillmere uygulamasını yükseltmesini isteyin.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Kurulumu istediğiniz zaman yeniden çalıştırabilirsiniz. Kurulum sihirbazından çıkmak için “Bitir” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Sunucu bağlantısı kararlı değil.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Daha yeni bir Quillmere sürümü zaten kurulu. Bu sürümü kurmak için önce daha yeni olan sürümü kaldırın.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>[ProductName] kurulumunu onarmak için “Onar” düğmesine tıklayın. Seçimlerinizi gözden geçirmek için “Geri” düğmesine, kurulum sihirbazından çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Bazı ayarlar kaydedilmedi. Kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Dosyalardaki simge kaplamaları</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Bu klasör başka bir eşitleme programı tarafından zaten kullanılıyor. Çakışmaları önlemek için başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Uyumsuz sürüm</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Eşitleme klasörünü değiştir</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Klasör yolu olmadan dosya adının tamamını girin, örneğin thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Kurulum bir hata nedeniyle durdu. Yaptığı değişiklikler geri alındı.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum sihirbazı [ProductName] uygulamasını bilgisayarınıza kuracak. Devam etmek için “Sonraki” düğmesine, kurulum sihirbazından çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Eşitleme sorunu</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Aşağıdaki lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Klasör boş değil</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Şifreli bağlantı (TLS) kullan</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar kullanımda.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Yeni bir Quillmere sürümü var. Yükseltmek için buraya tıklayın.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>“%1” dosyasının indirilmesi iptal edildi.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Girdiğiniz değer geçerli değil. Değeri denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Bu dosyanın henüz önceki bir sürümü yok. Sürüm oluşturmak için dosyayı değiştirin ve eşitlenmesini bekleyin.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bağlantıyı kes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmere hazırlanıyor...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başlat</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Eşitlemeyi duraklat</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Birleştirme modu</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere hazır.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Bu sürüm indirilemedi. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Eşitlemeden hariç tutulan dosyalar</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Quillmere hizmeti sunucuda kapalı. Sunucu yöneticisinden hizmeti açmasını isteyin.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Eşitlenecek paylaşılan klasörleri seçin</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Kaldır</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Karşıya yükleniyor...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Seçmeli eşitlemeyi kullanmak için sunucu yöneticisinden sunucudaki Quillmere uygulamasını yükseltmesini isteyin.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Hiçbir ayar değiştirilmedi.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Kullanımdaki dosyalar</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Eksik veya zarar görmüş dosyaları ve kısayolları geri yükleyerek [ProductName] kurulumundaki hataları onarır.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Hariç tutulan dosya uzantıları</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Eşitleme duraklatıldı.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] kurulum sihirbazına yeniden hoş geldiniz</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Eşitleme klasörünün bulunduğu sürücü bağlı değil. Sürücüyü bağlayın, ardından eşitlemeyi sürdürün. Klasör için “Eşitleme görevleri” sayfasına bakın.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Eşitleme klasörünün bulunduğu sürücü dolu.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Vekil sunucu adresi</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Yeniden Dene</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Y&amp;oksay</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Bu bilgisayarda bu adda bir klasör zaten var. Klasördeki dosyalar sunucudakilerle birleştirilsin mi?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere, dosyalarınızı bilgisayarlarınız ile sunucunuz arasında eşitler.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Kurulu bileşenleri değiştir</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Quillmere uygulamasına hoş geldiniz</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Quillmere yükseltiliyor...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Eşitleme modu</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Bir alan adı, IP adresi veya sunucu kimliği girin.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Bu dosya için paylaşım bağlantısı oluşturulamadı. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Eşitlenmekte olan dosyalar: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Yeniden bağlan</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Dosyalarınız her yerde eşitlenmiş durumda</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Kurulum sihirbazı seçtiğiniz değişiklikleri yapıyor.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>İşaretini kaldırdığınız klasörler ve dosyalar bu bilgisayardan kaldırılacak. Sunucuda ise korunacaklar.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Kurulum, seçtiğiniz tüm değişiklikleri yaptı. Kurulum sihirbazından çıkmak için “Bitir” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırmak için “Kaldır” düğmesine tıklayın. Seçimlerinizi gözden geçirmek için “Geri” düğmesine, kurulum sihirbazından çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Boş alan kalmadı</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Bağlantı kesildi</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Sunucudaki alanınızın tamamını kullandınız.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Sunucu bağlantısı kesilsin mi?\nDosyalarınız bu bilgisayarda ve sunucuda saklanacak, ancak artık eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Aktarma hizmetinde bir sorun var. Daha sonra yeniden deneyin veya sunucuya IP adresiyle bağlanın.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Sunucu kimliği</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Hariç tutulan dosya adları</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Sunucu adresi</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Eşitleme klasörünün bulunduğu sürücü dolu. Eşitlemeye devam etmek için sürücüde yer açın.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Eşitlenecek klasörler</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Eşitleme klasörünü seçin</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Bağlantı ayarları</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Bilgisayar</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Sunucudaki alanınızın tamamını kullandınız. Gereksiz dosyaları silin veya sunucu yöneticisinden daha fazla alan isteyin.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>[ProductName] uygulamasını başlattıktan sonra sistem tepsisinde bulabilirsiniz.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>Uygulamaları açık &amp;bırak ve bilgisayarı daha sonra yeniden başlat</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Aşağıdaki vekil sunucuyu kullan</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Bu dosya hem bu bilgisayarda hem de sunucuda değiştirilmiş. İki kopya da aynı klasörde, farklı adlarla duruyor. Kopyaları karşılaştırın, ardından gereken kopyayı saklayın.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Tüm dosyalarınız her bilgisayarınızda ve kendi sunucunuzda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Aşağıdaki uygulamalar, kurulumun güncellemesi gereken dosyaları kullanıyor. Uygulamaları kapatın, ardından “Yeniden Dene” düğmesine tıklayın. Kapatmadan devam etmek için “Yoksay” düğmesine tıklayın. Kurulumdan çıkmak için “Çıkış” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Sunucuya ulaşılamıyor. Ağ bağlantısını ve sunucu adresini denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Yerel eşitleme klasörü</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Bu listedeki bir ögeyle eşleşen dosyalar eşitlenmez.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Bağlantıyı düzenle...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Aşağıdaki uygulamalar, kurulumun güncellemesi gereken dosyaları kullanıyor. Kurulumun bu uygulamaları kapatıp kapatmayacağını seçin. Uygulamalar açık kalırsa kurulumu tamamlamak için bilgisayarı yeniden başlatmanız gerekir.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Kurulum sihirbazı onarıma başlamaya hazır.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Quillmere uygulamasını aç</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Yeni dil ayarlarını uygulamak için lütfen %1 uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Hariç tutulan dosyalarda simge kaplamalarını göster</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Eşitlenen paylaşılan klasör sınırına ulaşıldı: %1. Başka bir klasör eklemeden önce bir paylaşılan klasörün eşitlemesini durdurun.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Bu eşitleme görevi kaldırılsın mı?\nGörevin dosyaları bu bilgisayarda ve sunucuda saklanacak, ancak artık eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Quillmere başlatılıyor...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere yükseltilemedi. Önceki sürümünüz korundu. Bilgisayarı yeniden başlatıp tekrar deneyin. Ayrıntılar ~/.Quillmere/log içinde.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Nokta ile başlayan adları hariç tut</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Sunucuda boş disk alanı yok. Sunucu yöneticisinden yer açmasını isteyin.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Lisans sözleşmesi</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>“%1” dosyası indirildi.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Bu dosyanın sürümleri listelenemedi. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Sunucuya bağlanıldı.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}[ProductName] kurulum sihirbazı tamamlandı</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Vekil sunucu kullanma</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Paylaşılan klasör bulunamadı</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>So&amp;nraki</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>“%1” dosyası indirilemedi. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Dosya değişiklikleri izleniyor...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Paylaşılan klasör</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmere ayarları</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Paylaşım bağlantısı silinemedi. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Sunucunun sertifikası doğrulanamadı: süresi dolmuş, başka bir sunucuya ait veya bilinmeyen bir yayımcıdan gelmiş olabilir. Sunucu yöneticisinden sertifikayı denetlemesini isteyin.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Bu sunucu, bu bilgisayarın daha önce bağlandığı sunucu değil. Sunucu adresini denetleyin veya yeniden bağlanın.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] uygulamasının ayrı ayrı değiştirilebilecek bileşenleri yok.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Vekil sunucunun adresi veya bağlantı noktası eksik. İkisini de girip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Vekil sunucu</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Kullanıcı adı eksik. Bir kullanıcı adı girin.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Paylaşım bağlantısını sil</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını &amp;kabul ediyorum</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Güncellendi: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Bağlantıları yönet</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Başka bir sunucuya bağlan...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Simge kaplamalarını göster</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] uygulamasında değişiklikler yapılıyor</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Hizmet kapalı</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Eşitle</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Bu paylaşılan klasörün eşitlemesi durdurulsun mu?\nBu bilgisayarda bulunan dosyalar saklanacak.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Kur</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Hariç tutulacak dosyalar</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Durum ayrıntıları</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını kabul &amp;etmiyorum</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Bir sorun oluştu. Yeniden deneyin; sorun sürerse sunucu yöneticisine başvurun. Ayrıntılar ~/.Quillmere/log içinde.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Sistem tepsisi simgeleri</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Klasör salt okunur. Yazabileceğiniz bir klasör seçin.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sonraki</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Geri</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Vekil sunucu ayarları</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Yönetici olarak oturum açmadınız, bu nedenle Quillmere tam olarak kurulamayabilir. Devam edilsin mi?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Eşitleme durumunu görmek veya ayarları değiştirmek için sistem tepsisi simgesini istediğiniz zaman kullanabilirsiniz.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Paylaşım bağlantısı oluşturuldu</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Kullanıcı adı veya parola doğru değil. İkisini de denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] onarılmaya hazır</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>“%1” paylaşılan klasörü artık kullanılabilir. Eşitlemek için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Bağlantı bilgileri</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Hangi bileşenlerin kurulacağını seçmenizi sağlar.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Klasör bir bağlama noktası</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Başka bir klasör seç...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indir</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Onar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>En büyük dosya boyutu</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Sunucu adresini ve sunucuda kullandığınız hesabı girin.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Sunucu adresinde başka bir sunucu bulundu.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Sunucuya bağlanılıyor...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Paylaşım bağlantısı oluştur</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Sunucu, kullanıcı adını veya parolayı kabul etmedi. Bağlantıyı düzenleyip bunları yeniden girin.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Son güncellenen dosyalar</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Sistemin vekil sunucu ayarlarını kullan</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Klasörü değiştir...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Bitir</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Dosya kilitli</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Dosyalar eşitleniyor...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] kurulmaya hazır</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Kullanıcı adı ve parola denetleniyor...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Kurulum sihirbazı [ProductName] uygulamasında değişiklikleri yaparken bekleyin. Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>Sunucu kimliği geçerli değil. Sunucu kimliğini denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Eşitleme klasörünü aç</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Sistem tepsisi simgesine çift tıklandığında</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Bu paylaşılan klasör için eşitleme açılamadı. Sunucudaki izinlerinizi denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Aktarma hizmeti üzerinden dosya paylaşımı sunucuda kapalı. Sunucu yöneticisinden bunu açmasını isteyin.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Eşitlemeyi sürdür</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Çı&amp;kış</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Paylaşım bağlantısı panoya kopyalandı.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Yerel eşitleme klasörü bulunamadı. Klasörü geri yükleyin veya başka bir klasör seçin. Klasörün yolu için “Eşitleme görevleri” sayfasına bakın.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Quillmere yükseltmesi</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Eşitleme görevi ekle...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Paylaşılan klasör sunucuda bağlı değil. Sunucu yöneticisinden klasörü bağlamasını isteyin. Klasörün adı için “Paylaşılan klasörler” sayfasına bakın.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Sunucu beklenmeyen bir yanıt gönderdi. Bu bilgisayardaki Quillmere uygulamasını yükseltin ve sunucu yöneticisinden sunucudaki uygulamayı yükseltmesini isteyin. Ayrıntılar ~/.Quillmere/log içinde.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Sunucuya genel bakış</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Eşitleme bir sorun nedeniyle durdu. Ayrıntılar için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>En fazla %1&#xa0;MB olan bir boyut girin.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dosyalar denetleniyor...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Eşitleme deneniyor...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>[ProductName] kurulumuna başlamak için “Kur” düğmesine tıklayın. Seçimlerinizi gözden geçirmek için “Geri” düğmesine, kurulum sihirbazından çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}[ProductName] kurulum sihirbazı iptal edildi</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Klasör boş değil. Klasördeki dosyaları sunucudakilerle birleştirin veya başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Bu klasör dizinleniyor. Klasördeki dosyalar, dizinleme tamamlandığında görünecek.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Bu paylaşılan klasördeki dosyaları açabilirsiniz, ancak yaptığınız değişiklikler sunucuya yüklenmez.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ağ ayarları</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Bu klasör zaten başka bir paylaşılan klasörle eşitleniyor. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Sunucuda boş disk alanı yok.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Sunucu kimliği ile aktarma</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Ne yapmak istediğinizi seçin.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}[ProductName] kurulum sihirbazı tamamlanamadı</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere zaten çalışıyor.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş geldiniz</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Bu bilgisayarda oturum açtığımda Quillmere uygulamasını başlat</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>İki klasördeki tüm dosyalar saklanır. Bir dosyanın iki sürümü farklıysa ikisi de farklı adlarla saklanır.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Kurulumu onar</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Eşitleme açık</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere başlatılamadı. Bilgisayarı yeniden başlatın, ardından Quillmere uygulamasını tekrar başlatın. Ayrıntılar ~/.Quillmere/log içinde.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>[ProductName] kurulum sihirbazı iptal edilsin mi?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Yine de devam et</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] uygulamasını değiştirin, onarın veya kaldırın</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere kullanıma hazır</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Gelişmiş ayarlar</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Sürümlere göz at...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Değiştir</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Bu bilgisayarın sunucu bağlantısı kesildi. Eşitlemeye devam etmek için yeniden bağlanın.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Algılanıyor...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Sertifika uyarısı</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Aktarma hizmetine ulaşılamıyor. İnternet bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırır.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>“%1” dosyası indiriliyor...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Bitir</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Salt okunur klasör</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Kurulum sihirbazını iptal ettiniz ve bilgisayarınızda değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Bağlantı noktası numarası geçerli değil. 1 ile 65535 arasında bir sayı girin.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere, ağ sürücüsündeki değişiklikleri izleyemez. Yerel bir sürücüde bir klasör seçin.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Uygulamayı kaldır</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Sunucuda bu klasörün bulunduğu sürücü bağlı değil. Sunucu yöneticisinden sürücüyü bağlamasını isteyin. Klasör için “Eşitleme görevleri” sayfasına bakın.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Bu Quillmere sürümü zaten kurulu. Yeniden kurulsun mu?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Bu bilgisayardaki Quillmere, sunucuyla çalışmak için çok eski. Quillmere uygulamasını yükseltip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Sunucudaki Quillmere, bu bilgisayarla çalışmak için çok eski.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Kapalı</translation>
    </message>
</context>
</TS>
